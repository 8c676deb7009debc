#pragma once

#include <string>
#include <string_view>

namespace tamrikon {

/// Appends `text` to `bytes`, each CR of it as CR LF. Tells whether all of it is ASCII, as nearly
/// every page is: one walk through the text finds out both.
bool appendWithLineBreaks(std::string& bytes, std::string_view text);

}  // namespace tamrikon
