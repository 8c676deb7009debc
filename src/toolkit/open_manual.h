// The manual, as the help file beside the program's other data.
#pragma once

#include <string>

namespace tamrikon {

class Toolkit;

/// Opens it in the viewer of the desktop, or says what is missing. `dataFolder` is the folder of
/// the program's data.
void openManual(Toolkit& toolkit, const std::string& dataFolder);

}  // namespace tamrikon
