// Counts what keeps the library in use: its objects, and the locks that hosts put on it.
#pragma once

#include "com/com.h"

namespace tamrikon {

/// Each object of the library holds one.
class ServerLock {
 public:
  ServerLock();
  ~ServerLock();
  ServerLock(const ServerLock&) = delete;
  ServerLock& operator=(const ServerLock&) = delete;

  /// Whether nothing is in use.
  static bool isFree();

  /// Adds or takes away a lock of a host's; E_UNEXPECTED if there is none to take away.
  static HRESULT change(bool lock);
};

}  // namespace tamrikon
