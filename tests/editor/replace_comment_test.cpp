#include "editor/replace_comment.h"

#include <gtest/gtest.h>

#include "editor/lines.h"
#include "support/fake_module.h"

namespace tamrikon {
namespace {

/// Fails at its call number `failing`, and with `goesOn` at all later ones.
struct FailingModule final : test::FakeModule {
  using FakeModule::FakeModule;

  int failing = 0;
  bool goesOn = false;
  mutable int calls = 0;

  void call() const {
    ++calls;
    if (calls == failing || (goesOn && calls > failing)) throw IdeError("no");
  }
  tamrikon::CodePane& CodePane() const override {
    call();
    return pane;
  }
  int CountOfLines() const override {
    call();
    return static_cast<int>(lines.size());
  }
  std::string Lines(int start, int) const override {
    call();
    return lines[static_cast<std::size_t>(start - 1)];
  }
  void InsertLines(int line, const std::string& text) override {
    call();
    FakeModule::InsertLines(line, text);
  }
  void DeleteLines(int start, int count) override {
    call();
    lines.erase(lines.begin() + (start - 1), lines.begin() + (start - 1 + count));
  }
};

TEST(ReplaceComment, WritesOverTheOldOne) {
  struct Case {
    const char* before;
    LineRange old;
    int codeLocation;
    const char* after;
    int caret;
  };
  for (const Case& c : {
           Case{"a|  X", {}, 2, "a|  '**|  'new|  X", 3},
           Case{"'**|'o|'o|  X", {1, 3}, 4, "  '**|  'new|  X", 2},
           Case{"'**|'o|||X", {1, 2}, 5, "||'**|'new|X", 4},
           Case{"  '**|  'o| X", {1, 2}, 1, " '**| 'new| X", 2},  // of a module, as all below
           Case{"|'**|'o|X", {2, 3}, 1, "'**|'new||X", 2},
           Case{"'**|'o", {1, 2}, 1, "'**|'new", 2},
       }) {
    FailingModule module(test::lines(c.before));
    std::optional<LineRange> old;
    if (c.old.first > 0) old = c.old;
    replaceComment(module, old, c.codeLocation, {"new"});
    EXPECT_EQ(module.lines, test::lines(c.after)) << c.before;
    EXPECT_EQ(module.pane.selection.startLine, c.caret) << c.before;
  }
}

TEST(ReplaceComment, LosesNothingWhereACallFails) {
  const CommentLines before = test::lines("a|'**|'old|X");
  const CommentLines after = test::lines("a|'**|'new|X");
  const CommentLines both = test::lines("a|'**|'old|'**|'new|X");
  for (const bool goesOn : {false, true}) {
    int failures = 0;
    for (int failing = 1;; ++failing) {
      FailingModule module(before);
      module.failing = failing;
      module.goesOn = goesOn;
      const bool worked = tryStep([&] { replaceComment(module, LineRange{2, 3}, 4, {"new"}); });
      if (!worked) ++failures;
      const bool isStuck = !worked && goesOn && module.calls > failing;
      EXPECT_EQ(module.lines, worked ? after : isStuck ? both : before) << failing << goesOn;
      if (module.calls < failing) break;
    }
    EXPECT_EQ(failures, 4) << goesOn;  // all calls but those that set the caret
  }
}

}  // namespace
}  // namespace tamrikon
