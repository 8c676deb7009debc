// What the steps of one compile work with.
#pragma once

#include "compiler/compile_listener.h"
#include "compiler/compile_run.h"
#include "compiler/session.h"
#include "compiler/store.h"
#include "ide/ide.h"

namespace tamrikon {

class CompileContext final : private FileErrorReporter {
 public:
  /// All of them must outlive this object.
  CompileContext(Session& theSession, VBE& theIde, CompileRun& theRun, CompileListener& theListener,
                 store& theStore);

  Session& session;
  VBE& ide;
  CompileRun& run;
  CompileListener& listener;
  store& compiled;

  TextFiles files;

  /// Asks the session's reporter; giving up cancels the compile.
  FileErrorReporter& errorReporter() { return *this; }

  /// Processes pending events. False if the compile is to end.
  bool shouldContinue();

  /// The same, with everything dropped if it is to end.
  bool checkpoint();

 private:
  FileErrorAnswer reportFileError(const std::string& path, std::string_view verb,
                                  FileError error) override;
  FileErrorAnswer reportFault(const std::string& path, std::string_view verb, FileError error,
                              const std::string& what) override;
};

}  // namespace tamrikon
