// What a compile works on: the macro table of a template and the model of a project.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "compiler/progress_log.h"
#include "model/module_source.h"
#include "model/page_context.h"
#include "model/project_model.h"
#include "template/macro_table.h"

namespace tamrikon {

class store {
 public:
  /// Both must outlive this object; the IDE's objects, as long as it holds their wrappers.
  store(const ProjectSettings& settings, CompileListener& listener);

  /// Loads a template: 0 for success, 2 if the user gave up at the file error dialog, 3 for any
  /// other failure. Throws as MacroTable::loadSrc() does.
  int loadSrc(const std::string& file, bool silent, TextFiles& files);

  /// Analyses the active project, and sets the macros of its index and contents. False, with an
  /// empty store, where `shouldContinue` says no.
  bool analyse(const std::function<bool()>& shouldContinue);

  std::string evaluateMacro(std::string_view name) { return macros_.evaluateMacro(name); }

  /// What to open of the finished documentation: the first line of the template's help file.
  std::string helpFile();

  ProgressLog& log() { return log_; }
  MacroTable& macros() { return macros_; }

  /// Only after the analysis.
  ProjectModel& model() { return *model_; }

  /// The wrappers that get a topic, in the order of all wrappers.
  const std::vector<WrapperRef>& compiledList() const { return compiledList_; }

  /// The bytes of the sources that were analysed.
  std::size_t sourceSize() const { return sources_.textSize(); }

  /// What the making of a page needs; only after the analysis.
  PageContext pageContext();

  /// Drops the model and all macros.
  void clearCollections();

 private:
  const ProjectSettings& settings_;
  ProgressLog log_;
  SourceCache sources_;
  std::unique_ptr<ProjectModel> model_;
  MacroTable macros_;
  std::vector<WrapperRef> compiledList_;
};

}  // namespace tamrikon
