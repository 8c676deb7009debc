// What a template says of itself.
#pragma once

#include <string>

#include "compiler/session.h"

namespace tamrikon {

/// The description of the template at `path` on one line; a text that says so if it can't be read.
/// A description may use TAMRIK-PATH and OUTPUT-PATH.
std::string readTemplateDescription(Session& session, const std::string& path);

}  // namespace tamrikon
