#include <gtest/gtest.h>

#include <memory>
#include <random>
#include <string>
#include <tuple>
#include <vector>

#include "host/source_text.h"
#include "source/edit_group.h"
#include "source/member_attributes.h"
#include "support/text_cases.h"

namespace tamrikon {
namespace {

using test::saved;
using test::TextCase;
using test::visible;

TEST(Editing, HiddenLinesStayWithTheLineThatLivesOn) {
  const auto check = [](const TextCase& c) {
    SourceFile file(c["before"], *CodePage::find(1252));
    file.replaceLines(c.number("first"), c.number("count"), c["text"]);
    EXPECT_EQ(saved(file), c["after"]);
    EXPECT_EQ(visible(SourceFile(saved(file), file.page())), visible(file));
    const bool wasChanged = file.isChanged();
    EXPECT_EQ(file.undo(), wasChanged);
    EXPECT_EQ(saved(file), c["before"]);
  };
  test::forEachCase("host/edits.txt", {"before", "first", "count", "text", "after"}, check);
}

TEST(Editing, WhatIsTypedStaysVisibleUntilTheFileIsReadAgain) {
  SourceFile file("a\n", *CodePage::find(1252));
  file.replaceLines(1, 1, "Attribute a.VB_HelpID = 1", EditKind::typing);
  EXPECT_EQ(visible(file), "Attribute a.VB_HelpID = 1");
  file.replaceLines(1, 1, "Attributes", EditKind::typing);
  EXPECT_EQ(saved(file), "Attributes\n");
}

TEST(Editing, TypingOnALineIsOneStepUntilItIsEnded) {
  const std::string bytes = "\x87\x90\n\n";  // two bytes that code page 932 would write otherwise
  SourceFile file(bytes, *CodePage::find(932));
  const auto type = [&](int line, const char* text) {
    file.replaceLines(line, 1, text, EditKind::typing);
  };
  type(2, "a");
  type(2, "ab");
  file.history().endTyping();
  type(2, "abc");
  file.replaceLines(2, 1, "abcd");
  for (const char* expected : {"≒|abc", "≒|ab", "≒|"}) {
    EXPECT_TRUE(file.undo());
    EXPECT_EQ(visible(file), expected);
  }
  type(1, "≒x");
  type(1, "≒");
  EXPECT_EQ(saved(file), bytes);
}

TEST(Editing, AGroupIsUndoneAtItsEndAndASaveDividesIt) {
  SourceFile file("a\nb\n", *CodePage::find(1252));
  {
    const EditGroup outer(file.history());
    file.deleteLines(1, 1);
    const EditGroup inner(file.history());
    file.insertLines(2, "c");
    EXPECT_FALSE(file.undo());
    file.setSaved();
    file.insertLines(3, "d");
  }
  EXPECT_TRUE(file.undo());
  EXPECT_FALSE(file.isChanged());
  EXPECT_EQ(visible(file), "b|c");
  EXPECT_TRUE(file.undo());
  EXPECT_EQ(visible(file), "a|b");
}

/// Keeps the lines as an editor does that looks only at what it is told.
class Mirror final : public SourceObserver {
 public:
  explicit Mirror(SourceFile& file) : file_(file) { linesChanged(1, 0, file.lineCount()); }
  void linesChanged(int first, int removed, int inserted) override {
    const auto start = lines.begin() + (first - 1);
    const auto now = file_.lines().begin() + (first - 1);
    lines.insert(lines.erase(start, start + removed), now, now + inserted);
  }
  void savedStateChanged() override { isChanged = !isChanged; }

  std::vector<std::string> lines;
  bool isChanged = false;

 private:
  SourceFile& file_;
};

/// Edits a file at random, and knows what each undo and redo must give back.
class RandomEditing {
 public:
  RandomEditing(const char* bytes, int page, unsigned seed)
      : random_(seed), file_(bytes, *CodePage::find(page)), attributes_(file_), mirror_(file_) {
    file_.observers().add(mirror_);
    states_.push_back(state());
  }

  void run() {
    for (int i = 0; i < 300 && !testing::Test::HasFailure(); ++i) act();
    while (file_.undo()) --position_;
    EXPECT_EQ(position_, 0U);
    check();
    while (file_.redo()) ++position_;
    check();
  }

 private:
  struct State {
    std::vector<std::string> lines;
    std::string bytes;
    bool operator==(const State&) const = default;
  };

  unsigned below(unsigned limit) { return static_cast<unsigned>(random_() % limit); }
  State state() const { return {{file_.lines().begin(), file_.lines().end()}, saved(file_)}; }

  std::string someText(bool mayHide) {
    static const char* const kLines[] = {"", "  x", "Sub A()", "Dim b, _", "' \xC3\xA4", "End Sub"};
    std::string text;
    for (unsigned left = 1 + below(4); left > 0; --left) {
      const bool hides = mayHide && below(3) == 0;
      text += hides ? "Attribute A.VB_HelpID = _\n 7" : kLines[below(6)];
      if (left > 1) text += below(2) == 0 ? "\r\n" : "\n";
    }
    return text;
  }

  /// One edit; the line that was typed on, or 0.
  int edit() {
    const auto lines = static_cast<unsigned>(file_.lineCount());
    const auto first = static_cast<int>(1 + below(lines + 1));
    const auto count =
        static_cast<int>(below(std::min(4U, lines + 2U - static_cast<unsigned>(first))));
    switch (below(6)) {
      case 0: file_.insertLines(first, someText(true)); return 0;
      case 1: file_.deleteLines(first, count); return 0;
      case 2: {
        const int owner = static_cast<int>(below(lines + 1));
        attributes_.setHelpContextID({owner == 0 ? "" : "A", owner == 0 ? "" : "A", false, owner},
                                     static_cast<int>(below(9)));
        return 0;
      }
      case 3: file_.replaceLines(first, count, someText(false)); return 0;
      default: {
        const int line = lines == 0 ? 1 : static_cast<int>(1 + below(std::min(lines, 2U)));
        const std::string text = "t" + std::to_string(below(1000));
        file_.replaceLines(line, lines == 0 ? 0 : 1, text, EditKind::typing);
        return line;
      }
    }
  }

  void act() {
    const State before = state();
    int typed = 0;
    switch (below(12)) {
      case 0:
        if (!file_.undo()) return check();
        --position_;
        break;
      case 1:
        if (!file_.redo()) return check();
        ++position_;
        break;
      case 2:
        file_.setSaved();
        saved_ = static_cast<long>(position_);
        break;
      case 3: {
        const EditGroup group(file_.history());
        while (state() == before) edit();
        push(false);
        edit();
        states_.back() = state();
        break;
      }
      default:
        typed = edit();
        if (state() == before) return check();
        push(typed != 0 && typed == run_);
    }
    run_ = typed;
    check();
  }

  void push(bool joins) {
    states_.resize(position_ + (joins ? 0 : 1));
    if (saved_ >= static_cast<long>(states_.size())) saved_ = -1;
    states_.push_back(state());
    position_ = states_.size() - 1;
  }

  void check() {
    const State now = state();
    EXPECT_EQ(now.lines, states_[position_].lines);
    EXPECT_EQ(now.bytes, states_[position_].bytes);
    EXPECT_EQ(mirror_.lines, now.lines);
    EXPECT_EQ(file_.isChanged(), saved_ != static_cast<long>(position_));
    EXPECT_EQ(mirror_.isChanged, file_.isChanged());
    EXPECT_EQ(visible(SourceFile(now.bytes, file_.page())), visible(file_));
  }

  std::mt19937 random_;
  SourceFile file_;
  MemberAttributes attributes_;
  Mirror mirror_;
  std::vector<State> states_;  // by the number of steps done
  std::size_t position_ = 0;
  long saved_ = 0;
  int run_ = 0;
};

TEST(Editing, UndoAndRedoGiveBackEveryByte) {
  using Case = std::tuple<const char*, int, const char*>;
  for (const auto& [name, page, bytes] : {
           Case{"empty", 1252, ""},
           Case{"class in code page 1252", 1252,
                "VERSION 1.0 CLASS\r\nBEGIN\r\nEND\r\nAttribute VB_Name = \"A\"\r\n' \xE4\x9D\r\n"
                "Sub A()\r\nAttribute A.VB_Description = \"\xFC\" _\r\n'x\r\nEnd Sub\r\n\r\nx"},
           Case{"UTF-8 with mark, LF", 1252,
                "\xEF\xBB\xBFOption Explicit\n\nSub A()\nAttribute A.VB_HelpID = 1\n' \xC3\xA4\n"},
           Case{"line ends of all kinds", 932,
                "a\r\x87\x90\nAttribute a.x = 1\r\r\n\nc\r\nAttribute c.x = 1\rd"},
       }) {
    for (unsigned seed = 1; seed <= 3; ++seed) {
      SCOPED_TRACE(std::string(name) + ", seed " + std::to_string(seed));
      RandomEditing(bytes, page, seed).run();
    }
  }
}

}  // namespace
}  // namespace tamrikon
