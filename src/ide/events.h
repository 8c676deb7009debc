// Sources of the IDE's events. A source sends its events to whoever set its handlers, until it is
// dropped.
#pragma once

#include <functional>
#include <memory>

namespace tamrikon {

class CommandBarControl;
class VBProject;

class CommandBarEvents {
 public:
  virtual ~CommandBarEvents() = default;
  std::function<void()> Click;
};

class VBProjectsEvents {
 public:
  virtual ~VBProjectsEvents() = default;
  std::function<void(VBProject&)> ItemAdded;
  std::function<void(VBProject&)> ItemActivated;

  /// The project is about to go; it and those that go with it still stand.
  std::function<void(VBProject&)> ItemRemoved;
};

class Events {
 public:
  virtual ~Events() = default;

  /// Fails on a null control.
  virtual std::unique_ptr<tamrikon::CommandBarEvents> CommandBarEvents(
      CommandBarControl* control) = 0;
  virtual std::unique_ptr<tamrikon::VBProjectsEvents> VBProjectsEvents() = 0;
};

}  // namespace tamrikon
