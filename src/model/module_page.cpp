#include "model/page_macros.h"
#include "model/wrappers.h"

namespace tamrikon {

std::string Smodule::compile(PageContext& context) {
  MacroTable& macros = context.macros;
  const ParsedComment parsed = parse(context, comment);
  macros.setMacroValue("APPLIES-LINK-LIST", "");
  macros.setMacroValue("PROPS-LINK-LIST", context.lists.getPropsList(*this));
  macros.setMacroValue("METHODS-LINK-LIST", context.lists.getMethodsList(*this));
  macros.setMacroValue("EVENTS-LINK-LIST", context.lists.getEventsList(*this));
  macros.setMacroValue("SEE-LINK-LIST", macroList(parsed, parsed.getSeeList()));
  macros.setMacroValue("PARAM-LIST", "");
  macros.setMacroValue("EXAMPLE-LINK-LIST", macroList(parsed, parsed.getExampleList()));
  setCommentText(context, parsed, "MEMBER-DESCRIPTION", parsed.getDescription());
  setCommentText(context, parsed, "MEMBER-REMARKS", parsed.getRemarks());
  macros.setMacroValue("MEMBER-RETURN", "");
  setNameMacros(context, *this);
  setTagMacros(context, parsed);
  // A module has no scope of its own; templates have always seen it as a friend.
  setScopeMacros(context, Scope::friend_);
  macros.setMacroValue("MEMBER-DECLARATION", "");
  macros.setMacroValue("MEMBER-SOURCECODE", "");
  writeIdeDescription(context, *this);
  return macros.evaluateMacro(traits().section);
}

}  // namespace tamrikon
