// The lines of a module, for everybody who reads them.
#pragma once

#include <memory>
#include <string_view>
#include <vector>

namespace tamrikon {

/// The lines of a module together with what keeps their text alive.
struct SharedLines {
  std::shared_ptr<const void> memory;
  std::shared_ptr<const std::vector<std::string_view>> lines;
};

}  // namespace tamrikon
