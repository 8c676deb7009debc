#include "toolkit/open_manual.h"

#include "base/paths.h"
#include "toolkit/toolkit.h"

namespace tamrikon {

void openManual(Toolkit& toolkit, const std::string& dataFolder) {
  const std::string file = joinPath(dataFolder, "tamrikon.chm");
  toolkit.openDocument(
      file, {"Help", "Cannot show the manual, \"" + file +
                         "\".\rEither that file isn't there, or the desktop has no viewer "
                         "for compiled help (.chm)."});
}

}  // namespace tamrikon
