// The folder of the program's data, such as its templates.
#pragma once

#include <string>

namespace tamrikon {

/// That of the environment variable TAMRIKON_HOME if it is set; otherwise the installed
/// share/tamrikon beside the program's folder; in a build tree the repository's data. Without a
/// separator at its end.
std::string dataFolder();

/// The same for a library, which is installed in the folder `libraryFolder`, lib/tamrikon beside
/// the programs, whatever program has loaded it.
std::string dataFolderOf(const std::string& libraryFolder);

}  // namespace tamrikon
