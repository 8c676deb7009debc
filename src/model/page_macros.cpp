#include "model/page_macros.h"

#include <utility>

#include "base/text.h"

namespace tamrikon {

ParsedComment parse(const PageContext& context, CommentList comment) {
  return parseComment(std::move(comment), context.tagWords, indentsFor(context.settings));
}

LinkListRef macroList(const ParsedComment& comment, ParsedComment::Entries entries) {
  static const LinkListRef empty = std::make_shared<const MacroList>();
  if (entries.empty()) return empty;
  return std::make_shared<const MacroList>(
      MacroList{std::move(entries), {}, comment.isGenerated()});
}

void setCommentText(PageContext& context, const ParsedComment& comment, std::string_view macro,
                    std::string_view text) {
  if (comment.isGenerated()) {
    context.macros.setProjectText(macro, text);
  } else {
    context.macros.setCommentText(macro, text);
  }
}

void setNameMacros(PageContext& context, const Wrapper& wrapper) {
  const std::string& module = wrapper.source().name();
  context.macros.setProjectText("MEMBER-NAME", wrapper.name());
  context.macros.setProjectText("MEMBER-MODULE", module);
  context.macros.setProjectText("MEMBER-FILE", module + "-" + wrapper.name());
}

void setTagMacros(PageContext& context, const ParsedComment& comment) {
  MacroTable& macros = context.macros;
  setCommentText(context, comment, "MEMBER-AUTHOR", comment.getAuthor());
  setCommentText(context, comment, "MEMBER-REVISION", comment.getRevision());
  setCommentText(context, comment, "MEMBER-VERSION", comment.getVersion());
  constexpr std::string_view kNumbered[] = {"MEMBER-USER1", "MEMBER-USER2", "MEMBER-USER3",
                                            "MEMBER-USER4", "MEMBER-USER5"};
  for (std::size_t tag = 0; tag < ProjectSettings::kUserTags; ++tag) {
    const std::string text = comment.getUser(tag + 1);
    // Of a generated comment these are what the settings say, so they call what comments may.
    for (const std::string& name : context.userTagMacros[tag]) macros.setCommentText(name, text);
    macros.setCommentText(kNumbered[tag], text);
  }
}

void setScopeMacros(PageContext& context, Scope scope) {
  const bool isPublic = scope == Scope::public_;
  const bool isPrivate = scope == Scope::private_;
  context.macros.setMacroValue("MEMBER-PUBLIC", isPublic ? "Public" : "");
  context.macros.setMacroValue("MEMBER-PRIVATE", isPrivate ? "Private" : "");
  context.macros.setMacroValue("MEMBER-FRIEND", isPublic || isPrivate ? "" : "Friend");
}

void writeIdeDescription(PageContext& context, Wrapper& wrapper) {
  if (!context.settings.comWriteDescription) return;
  std::string text = context.macros.getMacroBody("MEMBER-DESCRIPTION");
  if (text.ends_with('\r')) text.pop_back();
  text = replaceAll(replaceAll(text, "\r", " "), "$EOL$", "\r\n");
  // As the pages show it: a comment can double a "$", and skeletons of descriptions do.
  if (context.macros.limitsComments()) text = replaceAll(text, "$$", "$");
  int helpContextID = 0;
  tryStep([&] { helpContextID = wrapper.ideHelpContextID(); });
  tryStep([&] { wrapper.setIdeDescription(text); });
  // An IDE may lose the number when the text is written.
  if (helpContextID <= 0) return;
  tryStep([&] { wrapper.setIdeHelpContextID(helpContextID, context.settings.comContextID); });
}

}  // namespace tamrikon
