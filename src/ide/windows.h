// The windows of the IDE.
#pragma once

#include <cstdint>

namespace tamrikon {

class Window {
 public:
  virtual ~Window() = default;
  virtual void Close() = 0;
  virtual void SetFocus() = 0;

  /// The window's number with the platform; 0 where there is none.
  virtual std::uintptr_t HWnd() const = 0;
};

/// The windows that are open, in no particular order.
class Windows {
 public:
  virtual ~Windows() = default;
  virtual int Count() const = 0;
  virtual Window& Item(int number) const = 0;
};

}  // namespace tamrikon
