// Loading a comment into fields and composing it again: what must come back.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <utility>

#include "base/text.h"
#include "comments/comment_parser.h"
#include "editor/compose_comment.h"
#include "editor/lines.h"

namespace tamrikon {
namespace {

using test::layoutOf;
using Lines = CommentLines;

CommentList bodyOf(Lines written) {
  for (std::string& line : written) line.insert(0, "'");
  return stripCommentQuotes(std::move(written));
}

/// What the editor would write over a comment that stands in the source.
Lines applied(const Lines& written, const ProjectSettings& settings) {
  return composeComment(parseIntoFields(*bodyOf(written), settings), settings);
}

Lines valuesOf(const Lines& written, const ProjectSettings& settings) {
  CommentParser parser(settings);
  parser.setComment(bodyOf(written));
  Lines values{parser.getDescription()};
  if (!values[0].empty()) values[0].pop_back();
  using Reader = std::string (CommentParser::*)() const;
  for (const Reader read :
       {&CommentParser::getRemarks, &CommentParser::getReturn, &CommentParser::getAuthor,
        &CommentParser::getVersion, &CommentParser::getRevision, &CommentParser::getSame}) {
    values.push_back((parser.*read)());
  }
  for (std::size_t i = 1; i <= 5; ++i) values.push_back(parser.getUser(i));
  values.push_back(parser.getIncludeSource().empty() ? "no source" : "source");
  const auto [one, two, three] = parser.getSettingsList();
  for (const Lines& list :
       {parser.getSeeList(), parser.getExampleList(), parser.getParamList(), one, two, three}) {
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

}  // namespace
}  // namespace tamrikon
