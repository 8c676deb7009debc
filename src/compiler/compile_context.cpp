#include "compiler/compile_context.h"

namespace tamrikon {

CompileContext::CompileContext(Session& theSession, VBE& theIde, CompileRun& theRun,
                               CompileListener& theListener, store& theStore)
    : session(theSession),
      ide(theIde),
      run(theRun),
      listener(theListener),
      compiled(theStore),
      files(theSession.files.files(), *this) {
  files.setCodePage(theSession.files.codePage());
}

bool CompileContext::shouldContinue() {
  listener.checkpoint(run);
  return !run.cancelRequested;
}

bool CompileContext::checkpoint() {
  if (shouldContinue()) return true;
  compiled.clearCollections();
  return false;
}

FileErrorAnswer CompileContext::reportFileError(const std::string& path, std::string_view verb,
                                                FileError error) {
  return reportFault(path, verb, error, {});
}

FileErrorAnswer CompileContext::reportFault(const std::string& path, std::string_view verb,
                                            FileError error, const std::string& what) {
  const FileErrorAnswer answer = session.fileErrors.reportFault(path, verb, error, what);
  if (answer == FileErrorAnswer::giveUp) run.cancelRequested = true;
  return answer;
}

}  // namespace tamrikon
