// Making one undo step of several edits.
#pragma once

#include "source/edit_history.h"

namespace tamrikon {

class HostModule;

/// As long as one lives, all edits of the module's source, through whichever module, are one undo
/// step. A group within a group is a part of it; a save divides the step.
class EditGroup {
 public:
  /// The source must outlive the group.
  explicit EditGroup(HostModule& module);
  explicit EditGroup(EditHistory& history) : history_(history) { history_.beginGroup(); }
  ~EditGroup() { history_.endGroup(); }
  EditGroup(const EditGroup&) = delete;
  EditGroup& operator=(const EditGroup&) = delete;

 private:
  EditHistory& history_;
};

}  // namespace tamrikon
