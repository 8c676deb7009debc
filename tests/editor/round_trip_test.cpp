// Loading a comment into fields and composing it again: what must come back, and where a user will
// see something else.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <functional>
#include <random>
#include <set>
#include <utility>

#include "base/text.h"
#include "comments/comment_parser.h"
#include "editor/compose_comment.h"
#include "editor/edited_comment.h"
#include "host/host_ide.h"
#include "model/wrapper_comments.h"
#include "model/wrappers.h"
#include "support/temp_folder.h"

namespace tamrikon {
namespace {

using Lines = CommentLines;

ProjectSettings layoutOf(int wordWrapLength, int autoInsertEOL) {
  ProjectSettings settings;
  settings.wordWrapLength = static_cast<std::int16_t>(wordWrapLength);
  settings.autoInsertEOL = static_cast<std::int16_t>(autoInsertEOL);
  settings.userName[1] = "a20LetterTagName12";
  return settings;
}

/// What the editor would write over a comment that stands in the source.
Lines applied(const Lines& written, const ProjectSettings& settings) {
  Lines source = written;
  for (std::string& line : source) line.insert(0, "'");
  return composeComment(parseIntoFields(*stripCommentQuotes(source), settings), settings);
}

/// The values of all tags, empty ones left out.
Lines valuesOf(const Lines& comment, const ProjectSettings& settings) {
  Lines source = comment;
  for (std::string& line : source) line.insert(0, "'");
  CommentParser parser(settings);
  parser.setComment(stripCommentQuotes(source));
  Lines values;
  const auto add = [&](std::string tag, const std::string& value) {
    if (!value.empty()) values.push_back(tag + value);
  };
  std::string description = parser.getDescription();
  if (!description.empty()) description.pop_back();
  add("", description);
  add("rem ", parser.getRemarks());
  add("return ", parser.getReturn());
  add("author ", parser.getAuthor());
  add("version ", parser.getVersion());
  add("revision ", parser.getRevision());
  for (std::size_t i = 1; i <= 5; ++i) add("user ", parser.getUser(i));
  add("same ", parser.getSame());
  if (!parser.getIncludeSource().empty()) values.push_back("includesource");
  for (const std::string& value : parser.getSeeList()) values.push_back("see " + value);
  for (const std::string& value : parser.getExampleList()) values.push_back("example " + value);
  for (const std::string& value : parser.getParamList()) values.push_back("param " + value);
  for (const auto& table : parser.getSettingsList()) {
    for (const std::string& value : table) values.push_back("set " + value);
  }
  return values;
}

/// The same with one blank for whatever divides words.
Lines wordsOf(const Lines& comment, const ProjectSettings& settings) {
  Lines values = valuesOf(comment, settings);
  for (std::string& value : values) {
    value = replaceAll(value, "$EOL$", " ");
    std::replace_if(
        value.begin(), value.end(), [](char c) { return c == '\r' || c == '\t'; }, ' ');
    while (value.find("  ") != std::string::npos) value = replaceAll(value, "  ", " ");
    value = trim(value);
  }
  values.erase(std::remove(values.begin(), values.end(), ""), values.end());
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

/// Whatever the width: a comment that is applied again and again comes to rest.
TEST(RoundTrip, EveryCommentSettles) {
  for (unsigned seed = 0; seed < 300; ++seed) {
    for (const int eol : {0, 1, 2}) {
      const ProjectSettings settings = layoutOf(30 + static_cast<int>(seed % 60), eol);
      Lines lines = applied(Generator(seed).comment(), settings);
      int times = 0;
      for (Lines again = applied(lines, settings); again != lines;
           again = applied(lines, settings)) {
        lines = std::move(again);
        ASSERT_LT(++times, 10) << seed << ' ' << eol;
      }
    }
  }
}

/// Where a comment doesn't come back as it was, though nobody changed it: each row shows what the
/// first and the second Apply write.
TEST(RoundTrip, ChangesThatTheFormatMakes) {
  struct Case {
    const char* name;
    int wrap, eol;
    Lines comment, first, second;
  };
  const std::string see = "@see          ";
  const std::string rem = "@rem          ";
  const std::string param = "@param        ";
  for (const Case& c : {
           Case{"what no reader takes goes",
                0,
                0,
                {"@see A", "lost", "@rem a", "@rem lost", "@same A", "@same B"},
                {rem + "a", see + "A ", "@same         B"},
                {rem + "a", see + "A ", "@same         B"}},
           Case{"a fourth parameter has no settings",
                0,
                0,
                {"@set a b c d", "@set b c d e", "@set c d e f", "@set d e f g"},
                {"@set          a b c d", "@set          b c d e", "@set          c d e f"},
                {"@set          a b c d", "@set          b c d e", "@set          c d e f"}},
           Case{"an empty comment leaves nothing to find", 0, 0, {""}, {}, {}},
           Case{"a bracket in a link begins its label",
                0,
                0,
                {"@see a[0] b"},
                {see + "a 0] [b"},
                {see + "a 0] [b"}},
           Case{"a tab behind a tag word stands for an empty first field",
                0,
                0,
                {"@param\tkey text", "@see\tA b"},
                {param + " key text", see + " A b"},
                {param + "key text", see + "A b"}},
           Case{"a parameter's text begins on the line of its name",
                0,
                0,
                {"@param key", "", "  text"},
                {param + "key ", "  text"},
                {param + "key   text"}},
           Case{"joining makes blanks of empty lines",
                0,
                1,
                {"Text.", "", "@rem", "text", "@author Ann", "", "@version", ""},
                {"Text. ", rem + " text", "@author       Ann "},
                {"Text.", rem + "text", "@author       Ann"}},
           Case{"a mark ends its line", 0, 1, {"a$EOL$b"}, {"a$EOL$", "b"}, {"a$EOL$", "b"}},
           Case{"blanks at a break stay in the source alone",
                6,
                1,
                {"abc  def"},
                {"abc ", "def"},
                {"abc", "def"}},
           Case{"a tab at a break becomes a blank",
                6,
                1,
                {"abc\tdefgh"},
                {"abc", "defgh"},
                {"abc", "defgh"}},
           Case{"a word that doesn't fit leaves its tag",
                16,
                0,
                {"@rem abcdef"},
                {"@rem         ", "abcdef"},
                {rem, "abcdef"}},
           Case{"a parameter's name that doesn't fit is its text",
                16,
                0,
                {"@param abcdef g"},
                {"@param       ", "abcdef g"},
                {param, "abcdef g"}},
           Case{"settings come apart in a narrow comment",
                18,
                0,
                {"@set k C 1 x"},
                {"@set          k C", "1 x"},
                {"@set          k C ", "1 x"}},
           Case{"a wrapped label loses what stands below its tag",
                24,
                0,
                {"@see A one two three"},
                {see + "A one two", "three"},
                {see + "A one two"}},
           Case{"a wrapped link is lost",
                16,
                0,
                {"@see Abc", "@same M.N", "@includesource yes"},
                {"@includesource", "yes", "@see         ", "Abc ", "@same        ", "M.N"},
                {}},
           Case{"a tag word at the start of a wrapped line is a tag",
                8,
                0,
                {"a b the @rem tag c"},
                {"a b the", "@rem tag", "c"},
                {"a b the", "@rem    ", "     tag", "c"}},
       }) {
    const ProjectSettings settings = layoutOf(c.wrap, c.eol);
    const Lines first = applied(c.comment, settings);
    EXPECT_EQ(first, c.first) << c.name;
    EXPECT_EQ(applied(first, settings), c.second) << c.name;
  }
}

void forEachModule(const HostIde& ide, const std::function<void(CodeModule&)>& see) {
  for (int p = 1; p <= ide.VBProjects().Count(); ++p) {
    const VBComponents& components = ide.VBProjects().Item(p).VBComponents();
    for (int c = 1; c <= components.Count(); ++c) {
      if (CodeModule* module = components.Item(c).CodeModule()) see(*module);
    }
  }
}

/// The commented members of the example projects.
class Examples {
 public:
  Examples() {
    namespace fs = std::filesystem;
    fs::copy(TAMRIKON_EXAMPLES "/Inventory", folder_ / "Inventory", fs::copy_options::recursive);
    std::string why;
    ide = HostIde::open(
        nativeFileSystem(), folder_ / "Inventory/Inventory.vbg", nullptr, [](const std::string&) {},
        why);
  }

  /// Body lines.
  void forEachComment(const std::function<void(const Wrapper&, const Lines&)>& see) const {
    forEachModule(*ide, [&](CodeModule& module) { forEachComment(module, see); });
  }

  std::unique_ptr<HostIde> ide;

 private:
  static void forEachComment(CodeModule& module,
                             const std::function<void(const Wrapper&, const Lines&)>& see) {
    ModuleSource source(module);
    const ProjectSettings settings;
    WrapperComments comments(settings);
    std::set<std::string> seen;
    for (int line = 1; line <= module.CountOfLines(); ++line) {
      const WrapperRef wrapper = getWrapperAtLine(source, line);
      if (!seen.insert(wrapper->link()).second) continue;
      const bool isModule = wrapper->kind() == WrapperKind::module;
      const CommentList raw =
          isModule ? WrapperComments::getModuleComment(source) : comments.getComment(*wrapper);
      if (!raw->empty()) see(*wrapper, *stripCommentQuotes(*raw));
    }
  }

  test::TempFolder folder_;
};

TEST(RoundTrip, TheExamplesComeBack) {
  const Examples examples;
  int comments = 0;
  examples.forEachComment([&](const Wrapper& wrapper, const Lines& comment) {
    ++comments;
    for (const auto& [wrap, eol] : {std::pair(96, 0), {0, 0}, {0, 1}, {96, 1}}) {
      ProjectSettings settings = layoutOf(wrap, eol);
      settings.userName[0] = "errors";
      const Lines first = applied(comment, settings);
      const std::string where = wrapper.link() + ' ' + std::to_string(wrap) + std::to_string(eol);
      EXPECT_EQ(wordsOf(first, settings), wordsOf(comment, settings)) << where;
      EXPECT_EQ(applied(first, settings), first) << where;
    }
  });
  EXPECT_EQ(comments, 98);
}

/// All sources, one below the other.
std::string sourcesOf(const HostIde& ide) {
  std::string text;
  forEachModule(
      ide, [&](CodeModule& module) { text += module.Lines(1, module.CountOfLines()) + "\r\n"; });
  return text;
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
  const Examples examples;
  ProjectSettings settings = layoutOf(96, 0);
  settings.userName[0] = "errors";
  std::vector<std::string> sources{sourcesOf(*examples.ide)};
  for (int pass = 0; pass < 2; ++pass) {
    std::vector<std::pair<CodeModule*, int>> places;
    examples.forEachComment([&](const Wrapper& wrapper, const Lines&) {
      places.emplace_back(&wrapper.cmo(), wrapper.CodeLocation());
    });
    ASSERT_EQ(places.size(), 98u);
    std::sort(places.begin(), places.end(), std::greater<>());  // upwards: lines above stay
    for (const auto& [module, line] : places) {
      EditedComment comment(*module, line, settings);
      ASSERT_TRUE(comment.hadComment());
      comment.replace(composeComment(parseIntoFields(comment.commentLines(), settings), settings),
                      {});
    }
    sources.push_back(sourcesOf(*examples.ide));
  }
  EXPECT_NE(sources[0], sources[1]);
  EXPECT_EQ(sources[1], sources[2]);
  EXPECT_EQ(withoutComments(sources[0]), withoutComments(sources[1]));
}

}  // namespace
}  // namespace tamrikon
