// What tells declarations apart beside their names.
#pragma once

namespace tamrikon {

enum class Scope { private_ = 1, public_ = 2, friend_ = 3 };

/// Which procedure of a name is meant; Sub and Function are `procedure`.
enum class ProcKind { procedure = 0, let = 1, set = 2, get = 3 };

}  // namespace tamrikon
