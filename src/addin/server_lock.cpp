#include "addin/server_lock.h"

#include <atomic>

namespace tamrikon {
namespace {

std::atomic<long> objects = 0;
std::atomic<long> locks = 0;

}  // namespace

ServerLock::ServerLock() {
  ++objects;
}

ServerLock::~ServerLock() {
  --objects;
}

bool ServerLock::isFree() {
  return objects == 0 && locks == 0;
}

HRESULT ServerLock::change(bool lock) {
  if (lock) {
    ++locks;
    return S_OK;
  }
  for (long held = locks; held > 0;) {
    if (locks.compare_exchange_weak(held, held - 1)) return S_OK;
  }
  return E_UNEXPECTED;
}

}  // namespace tamrikon
