#include "compiler/start_compile.h"

#include <exception>

#include "compiler/store.h"

namespace tamrikon {

CompileOutcome startCompile(Session& session, VBE& ide) {
  session.currentStore = std::make_unique<store>(session);
  session.cancelRequested = false;
  try {
    // A template that can't be loaded has set cancelRequested, if the user gave up at the dialog.
    session.currentStore->loadSrc(session.settings.templatePath, false);
    session.currentStore->compile(ide);
  } catch (const std::exception&) {
    return CompileOutcome::failed;
  }
  return session.cancelRequested ? CompileOutcome::aborted : CompileOutcome::finished;
}

}  // namespace tamrikon
