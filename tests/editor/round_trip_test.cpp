// Loading a comment into fields and composing it again: what must come back, and where a user will
// see something else.
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <map>
#include <random>
#include <set>
#include <utility>

#include "base/text.h"
#include "comments/parsed_comment.h"
#include "editor/compose_comment.h"
#include "editor/edited_comment.h"
#include "editor/field_origins.h"
#include "editor/lines.h"
#include "host/host_ide.h"
#include "model/wrappers.h"
#include "settings/settings_file.h"
#include "support/text_cases.h"

namespace tamrikon {
namespace {

using test::layoutOf;
using Lines = CommentLines;

CommentList bodyOf(Lines written) {
  for (std::string& line : written) line.insert(0, "'");
  return stripCommentQuotes(written);
}

/// What the editor would write over a comment that stands in the source.
Lines applied(const Lines& written, const ProjectSettings& settings) {
  return composeComment(parseIntoFields(*bodyOf(written), settings), settings);
}

Lines valuesOf(const Lines& written, const ProjectSettings& settings) {
  const TagWords words(settings.userName);
  const ParsedComment parsed = parseComment(bodyOf(written), words, indentsFor(settings));
  Lines values{parsed.getDescription()};
  if (!values[0].empty()) values[0].pop_back();
  using Reader = std::string (ParsedComment::*)() const;
  for (const Reader read :
       {&ParsedComment::getRemarks, &ParsedComment::getReturn, &ParsedComment::getAuthor,
        &ParsedComment::getVersion, &ParsedComment::getRevision, &ParsedComment::getSame}) {
    values.push_back((parsed.*read)());
  }
  for (std::size_t i = 1; i <= 5; ++i) values.push_back(parsed.getUser(i));
  values.push_back(parsed.getIncludeSource().empty() ? "no source" : "source");
  const auto [one, two, three] = parsed.getSettingsList();
  for (const Lines& list :
       {parsed.getSeeList(), parsed.getExampleList(), parsed.getParamList(), one, two, three}) {
    values.push_back("of these " + std::to_string(list.size()));
    values.insert(values.end(), list.begin(), list.end());
  }
  return values;
}

/// The same with one blank for whatever divides words.
Lines wordsOf(const Lines& comment, const ProjectSettings& settings) {
  Lines values = valuesOf(comment, settings);
  for (std::string& value : values) {
    value = replaceAll(value, "$EOL$", " ");
    for (const char c : {'\r', '\t'}) std::replace(value.begin(), value.end(), c, ' ');
    while (value.find("  ") != std::string::npos) value = replaceAll(value, "  ", " ");
    value = trim(value);
  }
  return values;
}

/// Comments from a seed.
class Generator {
 public:
  explicit Generator(unsigned seed) : random_(seed) {}

  bool odd = true;    // runs of blanks, tabs, indents and empty lines
  bool marks = true;  // lines that end in $EOL$

  Lines comment() {
    Lines lines;
    if (chance(2)) addText(lines, odd && chance(3) ? "  " + words(1) : words(1 + number(12)));
    for (int tags = number(14); tags > 0; --tags) addTag(lines);
    return lines;
  }

 private:
  int number(int below) { return static_cast<int>(random_() % static_cast<unsigned>(below)); }
  bool chance(int of) { return number(of) == 0; }

  std::string pick(const std::vector<std::string>& from) {
    return from[static_cast<std::size_t>(number(static_cast<int>(from.size())))];
  }
  std::string word() {
    return odd ? pick({"a", "Item", "'b", "\"x", "y\"", "größer", "a@see", "[x]", "$", "'**", "_"})
               : pick({"a", "the", "Item", "größer", "x.", "\"y\"", "[z]", "seven"});
  }
  std::string words(int count) {
    std::string text = word();
    for (int i = 1; i < count; ++i) text += (odd ? pick({" ", " ", "  ", "\t"}) : " ") + word();
    return text;
  }
  void addText(Lines& lines, std::string first) {
    lines.push_back(std::move(first));
    for (int more = chance(2) ? 0 : number(4); more > 0; --more) {
      if (marks && chance(3)) lines.back() += "$EOL$";
      if (odd && more > 1 && chance(4)) lines.push_back("");
      lines.push_back((odd ? pick({"", "", "    ", "@todo ", "\t", " @ "}) : "") +
                      words(1 + number(16)));
    }
  }
  void addTag(Lines& lines) {
    const std::string gap = pick({" ", "  ", "        "});
    switch (number(6)) {
      case 0:
        return addText(lines, pick({"@rem", "@return", "@author", "@version", "@revision", "@user1",
                                    "@a20LetterTagName12", "@user5"}) +
                                  gap + words(1 + number(14)));
      case 1: return addText(lines, "@param" + gap + word() + " " + words(1 + number(9)));
      case 2:
        return addText(lines, "@set" + gap + pick({"k", "l", "m", "n"}) + gap + "C" + gap +
                                  pick({"1", "\"a \"\"b\"", "-2"}) + gap + words(3));
      case 3:
        return lines.push_back("@see" + gap + pick({".Go", "Car.", "\"f.txt"}) +
                               pick({"", " it", " [a] b"}));
      case 4: return lines.push_back("@example" + gap + "\"a/b.txt" + pick({"", " One of [them]"}));
      default:
        lines.push_back(pick({"@same M.N", "  @includesource y", "@param", "@param n", "@set k",
                              "@set l C", "@set m C 4", "@see", "@rem", "@same", "@remove it"}));
    }
  }

  std::mt19937 random_;
};

TEST(RoundTrip, GeneratedCommentsComeBack) {
  for (unsigned seed = 0; seed < 300; ++seed) {
    for (const auto& [wrap, eol] :
         {std::pair(0, 0), {-80, 1}, {40, 0}, {80, 0}, {40, 1}, {80, 1}}) {
      const ProjectSettings settings = layoutOf(wrap, eol);
      Generator generator(seed);
      generator.odd = wrap <= 0;
      generator.marks = eol == 1;
      const Lines comment = generator.comment();
      const Lines first = applied(comment, settings);
      ASSERT_EQ(applied(first, settings), first) << seed << ' ' << wrap << ' ' << eol;
      ASSERT_EQ(wordsOf(first, settings), wordsOf(comment, settings)) << seed << ' ' << wrap;
      if (wrap <= 0 && eol == 0) {
        ASSERT_EQ(valuesOf(first, settings), valuesOf(comment, settings)) << seed;
      }
    }
  }
}

/// How often each word stands in lines.
std::map<std::string, int> countWords(const Lines& lines) {
  std::map<std::string, int> counts;
  for (const std::string_view line : lines) {
    for (const std::string_view part : split(line, ' ')) {
      for (const std::string_view word : split(part, '\t')) ++counts[std::string(word)];
    }
  }
  return counts;
}

TEST(RoundTrip, AnUnchangedCommentStaysAndAChangedOneLosesNoWordUnannounced) {
  for (unsigned seed = 0; seed < 2000; ++seed) {
    const ProjectSettings settings = layoutOf(seed % 3 == 0 ? 0 : 60, seed % 2);
    const Lines comment = bodyOf(Generator(seed).comment())->lines();
    const FieldOrigins origins(comment, settings);
    CommentFields fields = parseIntoFields(comment, settings);
    ASSERT_EQ(origins.compose(fields, settings, false), comment) << seed;
    Lines found = origins.unread();
    found.push_back(replaceAll(fields.remarks, "\r\n", " "));
    fields.remarks = "new";
    const Lines written = origins.compose(fields, settings, false);
    found.insert(found.end(), written.begin(), written.end());
    std::map<std::string, int> counts = countWords(found);
    for (const auto& [word, count] : countWords(comment)) {
      const std::string bare = replaceAll(word, "$EOL$", "");
      if (bare.empty() || (bare.starts_with("@") && bare != "@todo")) continue;
      ASSERT_GE(counts[word] + (bare == word ? 0 : counts[bare]), count) << seed << ' ' << word;
    }
    // What was written is what stands there now: writing it again changes nothing.
    const FieldOrigins again = origins.written(fields, settings, false);
    ASSERT_EQ(again.compose(fields, settings, false), written) << seed;
    ASSERT_TRUE(again.unread().empty());
  }
}

/// Where a comment doesn't come back as it was if all of it is laid out.
TEST(RoundTrip, ChangesThatTheFormatMakes) {
  const auto check = [](const test::TextCase& c) {
    const ProjectSettings settings = layoutOf(c.number("wrap"), c.number("eol"));
    const Lines first = applied(c.list("comment"), settings);
    EXPECT_EQ(join(first, "|"), c["first"]);
    EXPECT_EQ(join(applied(first, settings), "|"), c[c.has("second") ? "second" : "first"]);
  };
  test::forEachCase("editor/laid-out.txt", {"wrap", "eol", "comment", "first", "second"}, check);
}

/// Where the declarations of commented members are, the lowest of a module first.
std::vector<int> commentedLines(CodeModule& module) {
  ModuleSource source(module);
  const ProjectSettings settings;
  std::set<std::string> seen;
  std::vector<int> lines;
  for (int line = 1; line <= module.CountOfLines(); ++line) {
    const WrapperRef wrapper = getWrapperAtLine(source, line);
    if (!seen.insert(wrapper->link()).second) continue;
    if (!EditedComment(module, line, settings).hadComment()) continue;
    lines.push_back(wrapper->CodeLocation());
  }
  std::sort(lines.begin(), lines.end(), std::greater<>());
  return lines;
}

std::string withoutComments(const std::string& sources) {
  std::string code;
  for (const std::string_view line : split(sources, '\n')) {
    const std::string_view text = trim(line.substr(0, line.size() - line.ends_with('\r')));
    if (!text.empty() && !text.starts_with('\'')) code.append(text).append("\n");
  }
  return code;
}

TEST(RoundTrip, TheExamplesAreWrittenBackTwice) {
  for (const auto& [wrap, eol] : {std::pair(96, 0), {0, 0}, {0, 1}, {96, 1}}) {
    std::string why;
    const auto ide = HostIde::open(  // nothing is saved
        nativeFileSystem(), TAMRIKON_EXAMPLES "/Inventory/Inventory.vbg", nullptr,
        [](const Diagnostic&) {}, why);
    ASSERT_TRUE(ide) << why;
    ProjectSettings settings = layoutOf(wrap, eol);
    settings.userName[0] = "errors";
    int comments = 0;
    KeyedList<CodeModule*> modules;
    for (int p = 1; p <= ide->VBProjects().Count(); ++p) {
      ide->activate(ide->VBProjects().Item(p));
      for (CodeModule* m : SettingsFile::codeModules(*ide)) modules.add(m, m->Name());
    }
    for (CodeModule* module : modules) {
      SCOPED_TRACE(module->Name() + ' ' + std::to_string(wrap) + std::to_string(eol));
      std::vector<std::string> sources{module->Lines(1, module->CountOfLines())};
      for (int pass = 0; pass < 2; ++pass) {
        for (const int line : commentedLines(*module)) {
          EditedComment edited(*module, line, settings);
          const Lines& old = edited.commentLines();
          const Lines lines = composeComment(parseIntoFields(old, settings), settings);
          EXPECT_EQ(wordsOf(lines, settings), wordsOf(old, settings)) << edited.member().link();
          edited.replace(lines, {});
          ++comments;
        }
        sources.push_back(module->Lines(1, module->CountOfLines()));
      }
      EXPECT_EQ(sources[1], sources[2]);
      EXPECT_EQ(withoutComments(sources[0]), withoutComments(sources[1]));
    }
    EXPECT_EQ(comments, 2 * 98);
  }
}

}  // namespace
}  // namespace tamrikon
