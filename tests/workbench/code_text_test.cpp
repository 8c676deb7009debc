#include <gtest/gtest.h>

#include <QPalette>
#include <QTextBlock>
#include <QTextDocument>
#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "toolkit_qt/qt_text.h"
#include "workbench/block_text.h"
#include "workbench/code_colours.h"
#include "workbench/text_search.h"
#include "workbench/vb_tokens.h"

namespace tamrikon {
namespace {

TEST(BlockTextTest, EveryLineComesBackAsItWas) {
  for (const std::string line :
       {"", "plain", "\t' caf\u00E9 \u4E2D \U0001F600", "fixed\u00A0space",
        "\uFEFFmark at the start", "divided\u2028by\u2029what\uFDD0ends\uFDD1blocks",
        "\x01\x0C control \x7F"}) {
    QTextDocument document;
    document.setPlainText(toBlock(line));
    EXPECT_EQ(document.blockCount(), 1) << line;
    EXPECT_EQ(fromBlock(document.firstBlock().text()), line);
  }
  EXPECT_EQ(toBlocks("a\r\n\r\n"), (QStringList{"a", "", ""}));
}

TEST(BlockTextTest, ColumnsCountCharacters) {
  const QString line = toBlock("a\U0001F600\u00E9b");
  const struct {
    int position;
    int column;
  } places[] = {{0, 1}, {1, 2}, {3, 3}, {4, 4}, {5, 5}};
  for (const auto& place : places) {
    EXPECT_EQ(columnAt(line, place.position), place.column);
    EXPECT_EQ(positionAt(line, place.column), place.position);
  }
  EXPECT_EQ(columnAt(line, 99), 5);
  EXPECT_EQ(positionAt(line, 99), 5);
}

/// Each piece that is coloured, behind a letter for its kind.
std::string tokens(const std::string& lines) {
  std::string result;
  int state = kPlain;
  std::vector<VbSpan> spans;
  for (const QString& line : toQt(lines).split('\n')) {
    state = scanVbLine(line, state, {"@todo"}, spans);
    for (const VbSpan& span : spans) {
      result += "kcmtsnd"[static_cast<int>(span.token)];
      result += '<' + fromQt(line.mid(span.start, span.length)) + '>';
    }
    result += '|';
  }
  result.pop_back();
  return result;
}

TEST(VbTokensTest, DividesAsTheLanguageDoes) {
  const struct {
    const char* source;
    const char* tokens;
  } cases[] = {
      {"Dim x As Long ' why", "k<Dim>k<As>k<Long>c<' why>"},
      {"s = \"it's \"\"so\"\"\" & t", "s<\"it's \">s<\"so\">s<\"\">"},
      {"s = \"no end ' here", "s<\"no end ' here>"},
      {"Rem all of it: x = 1", "c<Rem all of it: x = 1>"},
      {"x = 1: rem then: Dim", "n<1>c<rem then: Dim>"},
      {"Remark = 1", "n<1>"},
      {"' runs on _\nDim x\nDim y", "c<' runs on _>|c<Dim x>|k<Dim>"},
      {"x = 1 _\nDim", "n<1>|k<Dim>"},
      {"obj.Print col!Next, [Select], Print", "k<Print>"},
      {"x = &HFF& + &o17 - 1.5E-3# * .5 / 2@", "n<&HFF&>n<&o17>n<1.5E-3#>n<.5>n<2@>"},
      {"a1 = b & hex", ""},
      {"d = #12/24/1999 1:30:00 PM# - #1:2# ", "n<#12/24/1999 1:30:00 PM#>n<#1:2#>"},
      {"Print #1: Close #1", "k<Print>n<1>k<Close>n<1>"},
      {"#If Win32 Then\n# Else\n  #End If", "d<#If>k<Then>|d<# Else>|d<#End If>"},
      {"'**\n' @param x @see\n' text @see", "m<'**>|c<' >t<@param>c< x @see>|c<' text @see>"},
      {"'**\n' @todo x\n' @user1", "m<'**>|c<' >t<@todo>c< x>|c<' @user1>"},
      {"' @param without a marker", "c<' @param without a marker>"},
      {"'** Title\n\n' @param", "m<'**>c< Title>||c<' @param>"},
      {"'**\n\t' @see\n' @see", "m<'**>|c<' @see>|c<' @see>"},
      {"'**\n' @unknown\n'@returns", "m<'**>|c<' @unknown>|c<'>t<@returns>"},
  };
  for (const auto& entry : cases) EXPECT_EQ(tokens(entry.source), entry.tokens) << entry.source;
}

TEST(TextSearchTest, FindsWholeWordsAndCases) {
  const QString line = "Item items ITEM m_Item \u00C4tem.Item";
  const auto all = [&](const TextSearch& search) {
    std::vector<qsizetype> found;
    for (qsizetype at = search.findIn(line); at >= 0; at = search.findIn(line, at + 1)) {
      found.push_back(at);
    }
    std::vector<qsizetype> back;
    for (qsizetype end = line.size(); (end = search.findLastIn(line, end)) >= 0;) {
      back.insert(back.begin(), end);
    }
    EXPECT_EQ(found, back);
    return found;
  };
  using Places = std::vector<qsizetype>;
  EXPECT_EQ(all({"item", false, false}), (Places{0, 5, 11, 18, 28}));
  EXPECT_EQ(all({"Item", true, false}), (Places{0, 18, 28}));
  EXPECT_EQ(all({"item", false, true}), (Places{0, 11, 28}));
  EXPECT_EQ(all({".i", false, true}), Places{});
  EXPECT_EQ(all({"", false, false}), Places{});
}

/// How well one colour stands out from another, from 1 to 21.
double contrast(const QColor& one, const QColor& other) {
  const auto luminance = [](const QColor& colour) {
    const auto linear = [](double part) {
      return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
  };
  const double a = luminance(one);
  const double b = luminance(other);
  return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

TEST(CodeColoursTest, AreLegibleOnLightAndDark) {
  for (const QColor base :
       {QColor(0xFFFFFF), QColor(0xF4F0E6), QColor(0x1E1E1E), QColor(0x2B303B)}) {
    QPalette palette(base);
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::Text, base.lightness() < 128 ? 0xDDDDDD : 0x111111);
    palette.setColor(QPalette::Highlight, 0x2A82DA);
    const CodeColours colours = codeColours(palette);
    for (const QColor& behind : {base, colours.currentLine}) {
      for (const QColor& text : {colours.keyword, colours.comment, colours.tag, colours.string,
                                 colours.number, colours.directive}) {
        EXPECT_GE(contrast(text, behind), 4.5) << fromQt(text.name() + " on " + behind.name());
      }
    }
    EXPECT_GE(contrast(colours.lineNumber, colours.margin), 3) << fromQt(base.name());
  }
}

}  // namespace
}  // namespace tamrikon
