// The number of a documented thing, as the template sees it.
#pragma once

#include <cstdint>

namespace tamrikon {

/// Counts from 1 in a project's model.
enum class TopicId : std::uint32_t { none = 0 };

}  // namespace tamrikon
