#include "compiler/store.h"

#include "base/case_folding.h"
#include "base/paths.h"
#include "base/text.h"
#include "compiler/output_pages.h"
#include "compiler/same_comments.h"
#include "model/index_contents.h"
#include "model/project_analysis.h"
#include "model/property_merging.h"

namespace tamrikon {

store::store(Session& session)
    : macros(session.log),
      comments(session.settings),
      lists(wrappers),
      links(wrappers, lists, session.log),
      session_(session),
      parser_(session.settings) {
  macros.setLinkResolver(&links);
}

int store::loadSrc(const std::string& file, bool silent) {
  return macros.loadSrc(file, silent, session_.files);
}

std::string store::helpFile() {
  const std::string lines = macros.evaluateMacro("tamrik-help-file");
  return lines.substr(0, lines.find_first_of("\r\n"));
}

PageContext store::pageContext() {
  PageContext context{macros, parser_, session_.settings, wrappers, lists, {}};
  for (std::size_t tag = 0; tag < ProjectSettings::kUserTags; ++tag) {
    const std::string& name = session_.settings.userName[tag];
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

bool store::checkpoint() {
  session_.toolkit.checkpoint();
  if (!session_.cancelRequested) return true;
  clearCollections();
  return false;
}

void store::compile(VBE& VBInstance) {
  session_.log.lastLogMessage.clear();
  session_.log.logMessage("Project: " + VBInstance.ActiveVBProject().Name());
  session_.log.ShowProgress("Analysing the project...", "");
  macros.resetRunState();
  comments.nextHelpId = 100;
  if (!analyseAndList()) return;
  publishPaths();
  publishGroup(VBInstance);
  const PhaseScope phase(session_.times, CompilePhase::expansion);
  OutputPages pages(session_, *this, VBInstance);
  if (macros.evaluateMacro("SPLIT") == "0") {
    pages.compileSingleFile();
  } else {
    pages.compileFiles();
  }
}

/// Finds out all that pages tell of each other.
bool store::analyseAndList() {
  const PhaseScope phase(session_.times, CompilePhase::analysis);
  if (!analyse()) return false;
  for (const WrapperRef& wrapper : wrappers.all) {
    wrapper->needsModule = lists.needsModuleName(*wrapper);
  }
  compiledList = makeIndex(wrappers, session_.settings);
  macros.setMacroValue("INDEX-LINK-LIST", LinkLists::makeLinkList(compiledList));
  makeContents(compiledList, macros);
  return true;
}

bool store::analyse() {
  ProjectAnalysis analysis(session_.settings, sources_, comments, wrappers);
  analysis.analyseProject([&] {
    session_.toolkit.checkpoint();
    return !session_.cancelRequested;
  });
  if (!checkpoint()) return false;
  PropertyMerging merging(wrappers, parser_, session_.settings);
  merging.makeSamePropsFirst();
  if (!checkpoint()) return false;
  SameComments(wrappers, links, parser_).resolveSameComments();
  if (!checkpoint()) return false;
  merging.makeSameProps();
  lists.forget();
  return checkpoint();
}

void store::publishPaths() {
  ProjectSettings& settings = session_.settings;
  const auto publish = [&](std::string_view macro, std::string_view folder) {
    macros.setMacroValue(macro, doubleDollars(withoutTrailingSeparator(folder)));
  };
  macros.setMacroValue("TAMRIK-PATH", doubleDollars(session_.addInFolder));
  macros.setMacroValue("CHARSET", session_.files.codePage().webName());
  publish("TEMPLATE-PATH", settings.templateFolder);
  publish("OUTPUT-PATH", settings.outputPath);
  settings.outputPath = joinPath(withoutTrailingSeparator(settings.outputPath), "");
  macros.setCommentText("TITLE-PAGE-TEXT", settings.titlePageText);
}

void store::publishGroup(VBE& ide) {
  auto projects = std::make_shared<MacroList>();
  if (session_.compileWholeGroup) {
    const VBProjects& all = ide.VBProjects();
    // The form of a file in a link list: a template gets the name as $LIST-ITEM-FILE$.
    // With folders, only projects that have one have pages.
    const GroupFolders& folders = session_.groupFolders;
    for (int number = 1; number <= all.Count(); ++number) {
      const std::string name = all.Item(number).Name();
      if (folders.above.empty()) {
        projects->texts.push_back("\"" + name + "\r");
      } else if (const std::string& folder = folders.names.at(number - 1); !folder.empty()) {
        projects->texts.push_back("\"" + folder + "/" + name + "\r" + name);
      }
    }
    if (!folders.above.empty()) {
      const std::string_view above = withoutTrailingSeparator(folders.above);
      macros.setMacroValue("GROUP-PATH", doubleDollars(above));
      macros.setMacroValue("PROJECT-FOLDER", folders.of(all, ide.ActiveVBProject()));
    }
  }
  macros.setMacroValue("GROUP-PROJECTS-LIST", projects);
}

}  // namespace tamrikon
