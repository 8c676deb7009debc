// Writing to a descriptor, on systems that have them.
#pragma once

#include <unistd.h>

#include <cerrno>
#include <string_view>

namespace tamrikon {

/// Whether all bytes could be written; errno tells why if not.
inline bool writeAll(int descriptor, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t done = ::write(descriptor, bytes.data(), bytes.size());
    if (done < 0 && errno == EINTR) continue;
    if (done < 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(done));
  }
  return true;
}

}  // namespace tamrikon
