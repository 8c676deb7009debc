// The screen of the user.
#pragma once

namespace tamrikon {

/// Whether windows can be shown somewhere, as far as the environment tells.
bool hasDisplay();

}  // namespace tamrikon
