// Taking the user tags over from another project's settings file.
#pragma once

#include <string>

#include "platform/text_files.h"
#include "settings/project_settings.h"

namespace tamrikon {

/// Sets the user tags' fields of `settings` that the file names; its other keys are passed over.
/// 0 for success, 1 if the file isn't a settings file, 2 if the user gave up at the file error
/// dialog, 3 for any other failure. Only success changes `settings`.
int importUserTags(TextFiles& files, const std::string& path, ProjectSettings& settings);

}  // namespace tamrikon
