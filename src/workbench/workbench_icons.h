// The small pictures of the workbench, drawn as lines so that they are sharp at every scale and
// follow the colours of the palette.
#pragma once

#include <QIcon>

namespace tamrikon {

enum class WorkbenchIcon {
  open,
  save,
  saveAll,
  cut,
  copy,
  paste,
  undo,
  redo,
  find,
  explorer,
  project,
  folder,
  document,
  warning,
};

QIcon workbenchIcon(WorkbenchIcon which);

}  // namespace tamrikon
