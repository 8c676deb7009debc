#include "editor/replace_comment.h"

#include <gtest/gtest.h>

#include <tuple>

#include "editor/lines.h"
#include "support/fake_module.h"

namespace tamrikon {
namespace {

TEST(ReplaceComment, WritesOverTheOldOne) {
  using Case = std::tuple<const char*, LineRange, int, const char*, int>;
  for (const auto& [before, oldComment, codeLocation, after, caret] : {
           Case{"a|  X", {}, 2, "a|  '**|  'new|  X", 3},
           Case{"'**|'o|'o|  X", {1, 3}, 4, "  '**|  'new|  X", 2},
           Case{"'**|'o|||X", {1, 2}, 5, "||'**|'new|X", 4},
           Case{"  '**|  'o| X", {1, 2}, 1, " '**| 'new| X", 2},  // of a module, as all below
           Case{"|'**|'o|X", {2, 3}, 1, "'**|'new||X", 2},
           Case{"'**|'o", {1, 2}, 1, "'**|'new", 2},
       }) {
    test::FakeModule module(test::lines(before));
    std::optional<LineRange> old;
    if (oldComment.first > 0) old = oldComment;
    replaceComment(module, old, codeLocation, {"new"});
    EXPECT_EQ(module.lines, test::lines(after)) << before;
    EXPECT_EQ(module.pane.selection.startLine, caret) << before;
  }
}

TEST(ReplaceComment, LosesNothingWhereACallFails) {
  const CommentLines before = test::lines("a|'**|'old|X");
  const CommentLines after = test::lines("a|'**|'new|X");
  const CommentLines both = test::lines("a|'**|'old|'**|'new|X");
  for (const bool goesOn : {false, true}) {
    int failures = 0;
    for (int failing = 1;; ++failing) {
      test::FakeModule module(before);
      int calls = 0;
      module.onCall = [&] {
        ++calls;
        if (calls == failing || (goesOn && calls > failing)) throw IdeError("no");
      };
      const bool worked = tryStep([&] { replaceComment(module, LineRange{2, 3}, 4, {"new"}); });
      if (!worked) ++failures;
      const bool isStuck = !worked && goesOn && calls > failing;
      EXPECT_EQ(module.lines, worked ? after : isStuck ? both : before) << failing << goesOn;
      if (calls < failing) break;
    }
    EXPECT_EQ(failures, 4) << goesOn;  // all calls but those that set the caret
  }
}

}  // namespace
}  // namespace tamrikon
