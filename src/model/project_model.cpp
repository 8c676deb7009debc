#include "model/project_model.h"

#include "model/project_analysis.h"
#include "model/property_merging.h"
#include "model/same_comments.h"
#include "model/wrapper_comments.h"

namespace tamrikon {

std::unique_ptr<ProjectModel> analyseProject(const ProjectSettings& settings, SourceCache& sources,
                                             MessageLog& log,
                                             const std::function<bool()>& shouldContinue) {
  auto model = std::make_unique<ProjectModel>(settings, log);
  WrapperComments comments(settings);
  ProjectAnalysis(settings, sources, comments, model->wrappers).analyseProject(shouldContinue);
  if (!shouldContinue()) return nullptr;
  PropertyMerging merging(model->wrappers, model->tagWords, settings);
  merging.makeSamePropsFirst();
  if (!shouldContinue()) return nullptr;
  SameComments(model->wrappers, model->links, model->tagWords).resolveSameComments();
  if (!shouldContinue()) return nullptr;
  merging.makeSameProps();
  model->lists.forget();
  if (!shouldContinue()) return nullptr;
  for (const WrapperRef& wrapper : model->wrappers.all) {
    wrapper->needsModule = model->lists.needsModuleName(*wrapper);
  }
  return model;
}

}  // namespace tamrikon
