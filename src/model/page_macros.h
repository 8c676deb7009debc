// The macros that the pages of members and modules have in common.
#pragma once

#include <string>
#include <string_view>

#include "model/page_context.h"

namespace tamrikon {

/// The comment of a page.
ParsedComment parse(const PageContext& context, CommentList comment);

/// A list macro's value from entries of `comment`.
LinkListRef macroList(const ParsedComment& comment, ParsedComment::Entries entries);

/// Sets what `comment` says.
void setCommentText(PageContext& context, const ParsedComment& comment, std::string_view macro,
                    std::string_view text);

/// MEMBER-NAME, MEMBER-MODULE and MEMBER-FILE.
void setNameMacros(PageContext& context, const Wrapper& wrapper);

/// MEMBER-AUTHOR, MEMBER-REVISION, MEMBER-VERSION and the user tags, each of these by its name and
/// by its number, so that a tag's name can take the place of a macro that was set before. A tag
/// without a name in `userTagMacros` has its number alone.
void setTagMacros(PageContext& context, const ParsedComment& comment);

/// MEMBER-PUBLIC, MEMBER-PRIVATE and MEMBER-FRIEND: the word in one of them, the others empty.
void setScopeMacros(PageContext& context, Scope scope);

/// Writes MEMBER-DESCRIPTION to the project as the IDE's description of `wrapper`, if the settings
/// want it. A line end of the comment becomes a blank, a forced one a line end.
void writeIdeDescription(PageContext& context, Wrapper& wrapper);

}  // namespace tamrikon
