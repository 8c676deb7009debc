// The menus, toolbars and pop-up menus of the IDE, into which add-ins put items of their own.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace tamrikon {

/// The picture on a command item: `width` times `height` pixels from the top left, each with alpha,
/// red, green and blue from the highest byte down.
struct Face {
  int width = 0;
  int height = 0;
  std::vector<std::uint32_t> pixels;
};

class CommandBarControl {
 public:
  virtual ~CommandBarControl() = default;
  virtual std::string Caption() const = 0;
  virtual void setCaption(const std::string& caption) = 0;
  virtual std::string ToolTipText() const = 0;
  virtual void setToolTipText(const std::string& text) = 0;

  /// Puts a picture on the item.
  virtual void PasteFace(const Face& face) = 0;

  /// Takes the item out of its bar. Only CommandBarEvents on it may be used, or rather dropped,
  /// afterwards.
  virtual void Delete() = 0;
};

enum class ControlType { button = 1 };

class CommandBarControls {
 public:
  virtual ~CommandBarControls() = default;
  virtual int Count() const = 0;
  virtual CommandBarControl& Item(int number) const = 0;

  /// A new item before the item of number `before`, or with 0 at the end.
  virtual CommandBarControl& Add(ControlType type, int before = 0) = 0;
};

class CommandBar {
 public:
  virtual ~CommandBar() = default;
  virtual std::string Name() const = 0;
  virtual CommandBarControls& Controls() const = 0;
};

class CommandBars {
 public:
  virtual ~CommandBars() = default;

  /// Null if there is no such bar.
  virtual CommandBar* Item(const std::string& name) const = 0;
  virtual CommandBar* Item(int number) const = 0;
};

}  // namespace tamrikon
