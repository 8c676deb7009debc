#include "comments/comment_finder.h"

#include <gtest/gtest.h>

#include "support/fake_module.h"
#include "support/text_cases.h"

namespace tamrikon {
namespace {

std::string show(const std::optional<LineRange>& range) {
  return range ? std::to_string(range->first) + "-" + std::to_string(range->last) : "none";
}

TEST(CommentFinder, FindsTheCommentsOfMembersAndModules) {
  const auto check = [](const test::TextCase& c) {
    const test::FakeModule source(c.list("lines"));
    const ModuleLines lines(source.ShareLines());
    if (c.has("member")) {
      EXPECT_EQ(show(getCommentRange(lines, source.CountOfLines())), c["member"]);
    } else {
      EXPECT_EQ(show(getModuleCommentRange(lines)), c["module"]);
    }
  };
  test::forEachCase("comments/found-comments.txt", {"lines", "member", "module"}, check);
}

}  // namespace
}  // namespace tamrikon
