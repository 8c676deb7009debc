// Which skeletons a run of the command `comment` is to insert.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "base/keyed_list.h"
#include "cli/skeletons.h"
#include "cli/source_places.h"
#include "model/module_source.h"
#include "settings/project_settings.h"

namespace tamrikon {

/// The skeleton at a target in one of `modules`. Throws IdeError, saying what isn't there.
Skeleton skeletonAt(const CommentTarget& target, const KeyedList<CodeModule*>& modules,
                    SourceCache& sources, const ProjectSettings& settings);

/// The skeletons of all modules and members that a compile would document, with uncommented ones
/// documented too, and that have no comment: one for a property, where the topic of its procedures
/// comes from, and one for a statement that declares several names. They stand in the order of the
/// modules in the settings, a module before its members, and these in the order of lines. `goOn` is
/// called before each member; where it says no, the result is of no use.
std::vector<Skeleton> missingSkeletons(SourceCache& sources, const ProjectSettings& settings,
                                       const std::function<bool()>& goOn);

}  // namespace tamrikon
