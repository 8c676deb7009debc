#include "model/member_wrapper.h"
#include "model/page_macros.h"

namespace tamrikon {

int MemberWrapper::CodeLocation() const {
  return source().lines().toPhysicalLine(member_.CodeLocation());
}

std::string MemberWrapper::wantedSource(PageContext& context) const {
  constexpr int kAlways = 1;
  constexpr int kWhereAskedFor = 2;
  const int mode = context.settings.insertSourceGlobal;
  const bool wanted =
      mode == kAlways || (mode == kWhereAskedFor && !context.parser.getIncludeSource().empty());
  if (!wanted) return {};
  return pageSource(context);
}

// The order in which the macros are set shows: a user tag may bear the name of one of them.
std::string MemberWrapper::compile(PageContext& context) {
  MacroTable& macros = context.macros;
  const bool appliesNowhere = !hasParameters() && isStandardModule(source().type());
  // Asked for while the parser doesn't share the comment yet.
  LinkListRef applies =
      appliesNowhere ? macroList(context, {}) : context.lists.getAppliesList(*this);
  CommentParser& parser = context.parser;
  parser.setComment(comment);
  macros.setMacroValue("APPLIES-LINK-LIST", std::move(applies));
  macros.setMacroValue("SEE-LINK-LIST", macroList(context, parser.getSeeList()));
  if (hasParameters())
    macros.setMacroValue("PARAM-LIST", macroList(context, parser.getParamList()));
  auto tables = parser.getSettingsList();
  macros.setMacroValue("SET01-LIST", macroList(context, std::move(tables[0])));
  macros.setMacroValue("SET02-LIST", macroList(context, std::move(tables[1])));
  macros.setMacroValue("SET03-LIST", macroList(context, std::move(tables[2])));
  macros.setMacroValue("EXAMPLE-LINK-LIST", macroList(context, parser.getExampleList()));
  setCommentText(context, "MEMBER-DESCRIPTION", parser.getDescription());
  setCommentText(context, "MEMBER-REMARKS", parser.getRemarks());
  if (hasParameters()) {
    setCommentText(context, "MEMBER-RETURN", pageReturn(context));
  } else {
    macros.setProjectText("MEMBER-RETURN", pageReturn(context));  // a type or a value
  }
  setNameMacros(context, *this);
  setTagMacros(context);
  tryStep([&] { setScopeMacros(context, member_.Scope()); });
  tryStep([&] { macros.setMacroLines("MEMBER-DECLARATION", declaration()); });
  tryStep([&] { macros.setMacroLines("MEMBER-SOURCECODE", wantedSource(context)); });
  writeIdeDescription(context, *this);
  macros.setMacroValue("MEMBER-NEEDS-MODULE", needsModule ? "1" : "");
  return macros.evaluateMacro(traits().section);
}

}  // namespace tamrikon
