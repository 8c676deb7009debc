// A session on the machine's files and processes, whose file errors a toolkit shows.
#pragma once

#include <string>
#include <utility>

#include "compiler/session.h"
#include "dialogs/file_error_dialog.h"

namespace tamrikon::test {

struct FileErrors {
  FileErrorDialog dialog;
};

class TestSession : private FileErrors, public Session {
 public:
  explicit TestSession(Prompter& prompter, ProcessServices& processes = nativeProcessServices(),
                       std::string dataFolder = "/data")
      : FileErrors{FileErrorDialog(prompter)},
        Session(dialog, nativeFileSystem(), processes, std::move(dataFolder)) {}
};

}  // namespace tamrikon::test
