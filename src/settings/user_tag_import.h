// The user tags of a settings file alone, whichever project it belongs to.
#pragma once

#include <string>
#include <string_view>

#include "platform/text_files.h"
#include "settings/project_settings.h"

namespace tamrikon {

/// Sets the user tags' fields of `settings` that the text of a settings file names; its other keys
/// are passed over. False if the text hasn't the first line of such a file: nothing changes then.
bool readUserTags(std::string_view text, ProjectSettings& settings);

/// The same from a file.
/// 0 for success, 1 if the file isn't a settings file, 2 if the user gave up at the file error
/// dialog, 3 for any other failure. Only success changes `settings`.
int importUserTags(TextFiles& files, const std::string& path, ProjectSettings& settings);

}  // namespace tamrikon
