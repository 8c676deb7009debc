// Holds a counted reference.
#pragma once

#include <utility>

#include "com/com.h"

namespace tamrikon {

template <typename Interface>
class ComPtr {
 public:
  ComPtr() = default;

  /// Takes over a reference that the caller has.
  explicit ComPtr(Interface* object) : object_(object) {}
  ComPtr(const ComPtr&) = delete;
  ComPtr& operator=(const ComPtr&) = delete;
  ComPtr(ComPtr&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
  ComPtr& operator=(ComPtr&& other) noexcept {
    std::swap(object_, other.object_);
    return *this;
  }
  ~ComPtr() { reset(); }

  void reset() {
    if (Interface* object = std::exchange(object_, nullptr)) object->Release();
  }

  /// Where a call puts a reference, in place of the one that is held.
  void** put() {
    reset();
    return reinterpret_cast<void**>(&object_);
  }

  Interface* get() const { return object_; }
  Interface* operator->() const { return object_; }
  explicit operator bool() const { return object_ != nullptr; }

 private:
  Interface* object_ = nullptr;
};

}  // namespace tamrikon
