#include "compiler/compile.h"

#include <exception>
#include <stdexcept>

#include "base/paths.h"
#include "base/text.h"
#include "compiler/compile_context.h"
#include "compiler/output_pages.h"

namespace tamrikon {
namespace {

void publishPaths(CompileContext& context) {
  MacroTable& macros = context.compiled.macros();
  ProjectSettings& settings = context.session.settings;
  const auto publish = [&](std::string_view macro, std::string_view folder) {
    macros.setMacroValue(macro, doubleDollars(withoutTrailingSeparator(folder)));
  };
  macros.setMacroValue("TAMRIK-PATH", doubleDollars(context.session.addInFolder));
  macros.setMacroValue("CHARSET", context.files.codePage().webName());
  publish("TEMPLATE-PATH", settings.templateFolder);
  publish("OUTPUT-PATH", settings.outputPath);
  settings.outputPath = joinPath(withoutTrailingSeparator(settings.outputPath), "");
  macros.setCommentText("TITLE-PAGE-TEXT", settings.titlePageText);
}

/// The projects of the group as items of a link list, in their order.
std::vector<std::string> groupProjects(const VBProjects& all, const GroupFolders& folders) {
  std::vector<std::string> items;
  for (int number = 1; number <= all.Count(); ++number) {
    const std::string name = all.Item(number).Name();
    // The form of a file in a link list: a template gets the name as $LIST-ITEM-FILE$.
    // With folders, only projects that have one have pages.
    if (folders.above.empty()) {
      items.push_back("\"" + name + "\r");
    } else if (const std::string& folder = folders.names.at(number - 1); !folder.empty()) {
      items.push_back("\"" + folder + "/" + name + "\r" + name);
    }
  }
  return items;
}

void publishGroup(CompileContext& context) {
  MacroTable& macros = context.compiled.macros();
  auto projects = std::make_shared<MacroList>();
  if (context.run.compileWholeGroup) {
    const VBProjects& all = context.ide.VBProjects();
    const GroupFolders& folders = context.run.groupFolders;
    projects->texts = groupProjects(all, folders);
    if (!folders.above.empty()) {
      const std::string_view above = withoutTrailingSeparator(folders.above);
      macros.setMacroValue("GROUP-PATH", doubleDollars(above));
      macros.setMacroValue("PROJECT-FOLDER", folders.of(all, context.ide.ActiveVBProject()));
    }
  }
  macros.setMacroValue("GROUP-PROJECTS-LIST", projects);
}

bool analyse(CompileContext& context) {
  const PhaseScope phase(context.run.times, CompilePhase::analysis);
  return context.compiled.analyse([&] { return context.shouldContinue(); });
}

void compile(CompileContext& context) {
  store& compiled = context.compiled;
  // A template that can't be loaded has requested the end, if the user gave up at the file error.
  compiled.loadSrc(context.session.settings.templatePath, false, context.files);
  compiled.log().logMessage("Project: " + context.ide.ActiveVBProject().Name());
  compiled.log().ShowProgress("Analysing the project...", "");
  compiled.macros().resetRunState();
  if (!analyse(context)) return;
  publishPaths(context);
  publishGroup(context);
  const PhaseScope phase(context.run.times, CompilePhase::expansion);
  OutputPages pages(context);
  if (compiled.evaluateMacro("SPLIT") == "0") {
    pages.compileSingleFile();
  } else {
    pages.compileFiles();
  }
}

}  // namespace

CompileResult compileProject(Session& session, VBE& ide, CompileRun& run,
                             CompileListener& listener) {
  run.cancelRequested = false;
  if (!run.compileWholeGroup) run.writtenFiles.beginRun();
  listener.compileBegins();
  CompileResult result;
  result.compiled = std::make_unique<store>(session.settings, listener);
  try {
    CompileContext context(session, ide, run, listener, *result.compiled);
    compile(context);
    result.outcome = run.cancelRequested ? CompileOutcome::aborted : CompileOutcome::finished;
  } catch (const std::length_error& tooMuch) {
    result.compiled->log().report(
        {Diagnostic::About::compile, Severity::error, "too-large", tooMuch.what()});
  } catch (const std::exception&) {
    result.explainsFailure = false;
  }
  for (const Diagnostic& fault : run.writtenFiles.endProject()) listener.report(fault);
  listener.compileEnded(result.outcome);
  return result;
}

}  // namespace tamrikon
