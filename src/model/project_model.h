// The analysis of a project: what is documented in it, from its sources and its settings.
#pragma once

#include <functional>
#include <memory>

#include "base/message_log.h"
#include "comments/parsed_comment.h"
#include "model/link_lists.h"
#include "model/links.h"
#include "model/module_source.h"
#include "model/wrapper_collections.h"
#include "settings/project_settings.h"

namespace tamrikon {

struct ProjectModel {
  ProjectModel(const ProjectSettings& settings, MessageLog& log)
      : tagWords(settings.userName), links(wrappers, lists, log) {}

  const TagWords tagWords;
  WrapperCollections wrappers;
  LinkLists lists{wrappers};
  Links links;
};

/// The documented modules and members of those modules that the settings select, with their
/// comments and the wrappers whose topics serve them. Null if `shouldContinue`, which is called
/// before each member and between the steps, said no. `log` gets the links of @same that lead
/// nowhere. All of them must outlive the result.
std::unique_ptr<ProjectModel> analyseProject(const ProjectSettings& settings, SourceCache& sources,
                                             MessageLog& log,
                                             const std::function<bool()>& shouldContinue);

}  // namespace tamrikon
