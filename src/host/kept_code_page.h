// The code page that somebody has settled for a project: a file beside it, with the number alone.
#pragma once

#include <string>

#include "host/host_project.h"
#include "platform/code_page.h"
#include "platform/file_system.h"

namespace tamrikon {

/// "Shop.codepage" for "Shop.vbp".
std::string keptCodePagePath(const std::string& projectPath);

/// Null if there is no such file, or if it can't be used; `warn` is told then.
const CodePage* readKeptCodePage(FileSystem& files, const std::string& projectPath,
                                 const DiagnosticSink& warn);

FileError keepCodePage(FileSystem& files, const std::string& projectPath, const CodePage& page);

}  // namespace tamrikon
