// The files that examples are kept in.
#pragma once

#include <string>
#include <string_view>

#include "compiler/session.h"
#include "model/wrapper.h"
#include "toolkit/toolkit.h"

namespace tamrikon {

/// What a dialog for an example file shows: text files, beginning in the output folder. Without a
/// `fileName` the one that a new example of `member` gets is proposed.
FileChoice exampleFileChoice(std::string title, const Wrapper& member, std::string_view fileName,
                             const ProjectSettings& settings);

/// The link to a file: its name alone if it lies in the output folder, otherwise its path.
std::string exampleLink(std::string_view path, const ProjectSettings& settings);

/// Opens the file that a link names; a name alone is one in the output folder. A failure is shown.
void openExample(std::string_view link, Toolkit& toolkit, Session& session);

}  // namespace tamrikon
