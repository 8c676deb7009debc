// What shows the projects that the host holds: windows, bars and the events that come from them.
#pragma once

#include "ide/ide.h"

namespace tamrikon {

class HostModule;

class HostScreen {
 public:
  virtual ~HostScreen() = default;

  /// The pane of a module; opens a window when none is open.
  virtual CodePane& codePane(HostModule& module) = 0;

  /// Null if no window shows source.
  virtual CodePane* activeCodePane() = 0;

  /// Brings the pane to the front; fails if it isn't one of this screen's.
  virtual void setActiveCodePane(CodePane& pane) = 0;

  /// Another project has become the active one.
  virtual void projectActivated(VBProject& project) = 0;

  /// A project is about to go; it and those that go with it still stand.
  virtual void projectRemoved(VBProject& project) = 0;

  virtual tamrikon::Windows& windows() = 0;
  virtual Window* activeWindow() = 0;
  virtual Window& mainWindow() = 0;
  virtual tamrikon::CommandBars& commandBars() = 0;
  virtual tamrikon::Events& events() = 0;
};

}  // namespace tamrikon
