// What the Options dialog knows of whoever opened it.
#pragma once

namespace tamrikon {

class OptionsOwner {
 public:
  virtual ~OptionsOwner() = default;

  /// Closes the dialog.
  virtual void Hide() = 0;

  /// Set by the dialog before it hides: a compile is to start when the dialog has gone.
  bool startCompile = false;

  /// With it: of all projects of the group.
  bool compileWholeGroup = false;
};

}  // namespace tamrikon
