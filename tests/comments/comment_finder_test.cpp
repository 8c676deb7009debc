#include "comments/comment_finder.h"

#include <gtest/gtest.h>

#include "support/fake_module.h"

namespace tamrikon {
namespace {

using test::FakeModule;
using Lines = std::vector<std::string>;

std::string show(const std::optional<LineRange>& range) {
  return range ? std::to_string(range->first) + "-" + std::to_string(range->last) : "none";
}

struct Case {
  const char* name;
  Lines lines;
  const char* range;
};

TEST(CommentFinder, FindsAMembersComment) {
  for (const Case& c : {
           Case{"blank lines below", {"'** more", "'a", "", "   ", "", "Sub"}, "1-2"},
           Case{"blank line inside", {"'**", "'a", "", "'b", "Sub"}, "none"},
           Case{"lower of two markers", {"'**", "'a", "'**", "'b", "Sub"}, "3-4"},
           Case{"indented", {"  '**", "    'a", "  Sub"}, "1-2"},
           Case{"behind a tab", {"\t'**", "\t'a", "Sub"}, "none"},
           Case{"marker alone", {"x = 1", "'**", "Sub"}, "2-2"},
           Case{"no marker to the top", {"'a", "'b", "Sub"}, "none"},
       }) {
    const FakeModule source(c.lines);  // the last line stands for the declaration
    EXPECT_EQ(show(getCommentRange(ModuleLines(source), source.CountOfLines())), c.range) << c.name;
  }
}

TEST(CommentFinder, FindsAModulesComment) {
  for (const Case& c : {
           Case{"to the end", {"'**", "'a", "'b"}, "1-3"},
           Case{"up to a blank", {"", " ", " '**", "'a", "", "'b"}, "3-4"},
           Case{"first of two markers", {"'**", "'a", "'**", "'b", "Sub"}, "1-4"},
           Case{"marker alone", {"'**", "Sub"}, "1-1"},
           Case{"empty module", {}, "none"},
       }) {
    const FakeModule source(c.lines);
    EXPECT_EQ(show(getModuleCommentRange(ModuleLines(source))), c.range) << c.name;
  }
}

}  // namespace
}  // namespace tamrikon
