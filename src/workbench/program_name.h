// What the program calls itself.
#pragma once

namespace tamrikon {

inline constexpr auto kWorkbenchName = "Tamrikon Workbench";

}  // namespace tamrikon
