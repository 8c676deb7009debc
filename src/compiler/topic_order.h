// The order of the topics in a single file.
#pragma once

#include <vector>

#include "model/wrapper.h"

namespace tamrikon {

/// The topics in stretches that belong together: each module with its members behind it (forms,
/// then other objects, then standard modules; members as methods, properties, events, constants,
/// variables), and then, each alone, the properties of standard modules and members whose module
/// has no topic. Like stands with like in the order of the index labels, without regard to case.
std::vector<std::vector<WrapperRef>> topicOrder(const std::vector<WrapperRef>& wrappers);

}  // namespace tamrikon
