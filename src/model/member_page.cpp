#include "model/member_wrapper.h"
#include "model/page_macros.h"

namespace tamrikon {

int MemberWrapper::CodeLocation() const {
  return source().lines().toPhysicalLine(member_.CodeLocation());
}

std::string MemberWrapper::wantedSource(PageContext& context, const ParsedComment& parsed) const {
  constexpr int kAlways = 1;
  constexpr int kWhereAskedFor = 2;
  const int mode = context.settings.insertSourceGlobal;
  const bool wanted =
      mode == kAlways || (mode == kWhereAskedFor && !parsed.getIncludeSource().empty());
  if (!wanted) return {};
  return pageSource(context);
}

// The order in which the macros are set shows: a user tag may bear the name of one of them.
std::string MemberWrapper::compile(PageContext& context) {
  MacroTable& macros = context.macros;
  const bool appliesNowhere = !hasParameters() && isStandardModule(source().type());
  const ParsedComment parsed = parse(context, comment);
  macros.setMacroValue("APPLIES-LINK-LIST", appliesNowhere ? macroList(parsed, {})
                                                           : context.lists.getAppliesList(*this));
  macros.setMacroValue("SEE-LINK-LIST", macroList(parsed, parsed.getSeeList()));
  if (hasParameters()) macros.setMacroValue("PARAM-LIST", macroList(parsed, parsed.getParamList()));
  auto tables = parsed.getSettingsList();
  macros.setMacroValue("SET01-LIST", macroList(parsed, std::move(tables[0])));
  macros.setMacroValue("SET02-LIST", macroList(parsed, std::move(tables[1])));
  macros.setMacroValue("SET03-LIST", macroList(parsed, std::move(tables[2])));
  macros.setMacroValue("EXAMPLE-LINK-LIST", macroList(parsed, parsed.getExampleList()));
  setCommentText(context, parsed, "MEMBER-DESCRIPTION", parsed.getDescription());
  setCommentText(context, parsed, "MEMBER-REMARKS", parsed.getRemarks());
  if (hasParameters()) {
    setCommentText(context, parsed, "MEMBER-RETURN", pageReturn(parsed));
  } else {
    macros.setProjectText("MEMBER-RETURN", pageReturn(parsed));  // a type or a value
  }
  setNameMacros(context, *this);
  setTagMacros(context, parsed);
  tryStep([&] { setScopeMacros(context, member_.Scope()); });
  tryStep([&] { macros.setMacroLines("MEMBER-DECLARATION", declaration()); });
  tryStep([&] { macros.setMacroLines("MEMBER-SOURCECODE", wantedSource(context, parsed)); });
  writeIdeDescription(context, *this);
  macros.setMacroValue("MEMBER-NEEDS-MODULE", needsModule ? "1" : "");
  return macros.evaluateMacro(traits().section);
}

}  // namespace tamrikon
