#include "model/page_macros.h"

#include <utility>

#include "base/text.h"

namespace tamrikon {

LinkListRef macroList(CommentParser::Entries entries) {
  static const LinkListRef empty = std::make_shared<const MacroList>();
  if (entries.empty()) return empty;
  return std::make_shared<const MacroList>(MacroList{std::move(entries)});
}

void setNameMacros(PageContext& context, const Wrapper& wrapper) {
  const std::string& module = wrapper.source().name();
  context.macros.setMacroValue("MEMBER-NAME", wrapper.name());
  context.macros.setMacroValue("MEMBER-MODULE", module);
  context.macros.setMacroValue("MEMBER-FILE", module + "-" + wrapper.name());
}

void setTagMacros(PageContext& context) {
  MacroTable& macros = context.macros;
  macros.setMacroValue("MEMBER-AUTHOR", context.parser.getAuthor());
  macros.setMacroValue("MEMBER-REVISION", context.parser.getRevision());
  macros.setMacroValue("MEMBER-VERSION", context.parser.getVersion());
  constexpr std::string_view kNumbered[] = {"MEMBER-USER1", "MEMBER-USER2", "MEMBER-USER3",
                                            "MEMBER-USER4", "MEMBER-USER5"};
  for (std::size_t tag = 0; tag < ProjectSettings::kUserTags; ++tag) {
    const std::string text = context.parser.getUser(tag + 1);
    macros.setMacroValue(context.userTagMacros[tag], text);
    macros.setMacroValue(kNumbered[tag], text);
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
  int helpContextID = 0;
  tryStep([&] { helpContextID = wrapper.ideHelpContextID(); });
  tryStep([&] { wrapper.setIdeDescription(text); });
  // An IDE may lose the number when the text is written.
  if (helpContextID <= 0) return;
  tryStep([&] { wrapper.setIdeHelpContextID(helpContextID, context.settings.comContextID); });
}

}  // namespace tamrikon
