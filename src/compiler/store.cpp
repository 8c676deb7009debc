#include "compiler/store.h"

#include "base/case_folding.h"
#include "compiler/same_comments.h"
#include "model/index_contents.h"
#include "model/project_analysis.h"
#include "model/property_merging.h"

namespace tamrikon {

store::store(const ProjectSettings& settings, CompileListener& listener)
    : log(listener),
      macros(log),
      comments(settings),
      lists(wrappers),
      links(wrappers, lists, log),
      settings_(settings),
      parser_(settings) {
  macros.setLinkResolver(&links);
}

int store::loadSrc(const std::string& file, bool silent, TextFiles& files) {
  return macros.loadSrc(file, silent, files);
}

std::string store::helpFile() {
  const std::string lines = macros.evaluateMacro("tamrik-help-file");
  return lines.substr(0, lines.find_first_of("\r\n"));
}

PageContext store::pageContext() {
  PageContext context{macros, parser_, settings_, wrappers, lists, {}};
  for (std::size_t tag = 0; tag < ProjectSettings::kUserTags; ++tag) {
    const std::string& name = settings_.userName[tag];
    std::vector<std::string>& names = context.userTagMacros[tag];
    // That one is no text: it is part of the names of files, and of links to them.
    if (macros.limitsComments() && equalIgnoringCase(name, "EXT")) continue;
    names = {"MEMBER-" + uppered(name)};
    // The capital of a letter can have another small one.
    if (!equalIgnoringCase(uppered(name), name)) names.push_back("MEMBER-" + name);
  }
  return context;
}

void store::clearCollections() {
  macros.clear();
  links.compiledWrapper = nullptr;
  compiledList.clear();
  lists.forget();
  wrappers.clear();
}

bool store::analyse(const std::function<bool()>& shouldContinue) {
  comments.nextHelpId = 100;
  if (!findMembers(shouldContinue)) {
    clearCollections();
    return false;
  }
  for (const WrapperRef& wrapper : wrappers.all) {
    wrapper->needsModule = lists.needsModuleName(*wrapper);
  }
  compiledList = makeIndex(wrappers, settings_);
  macros.setMacroValue("INDEX-LINK-LIST", LinkLists::makeLinkList(compiledList));
  makeContents(compiledList, macros);
  return true;
}

bool store::findMembers(const std::function<bool()>& shouldContinue) {
  ProjectAnalysis(settings_, sources_, comments, wrappers).analyseProject(shouldContinue);
  if (!shouldContinue()) return false;
  PropertyMerging merging(wrappers, parser_, settings_);
  merging.makeSamePropsFirst();
  if (!shouldContinue()) return false;
  SameComments(wrappers, links, parser_).resolveSameComments();
  if (!shouldContinue()) return false;
  merging.makeSameProps();
  lists.forget();
  return shouldContinue();
}

}  // namespace tamrikon
