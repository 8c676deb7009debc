#include "base/diagnostic.h"

namespace tamrikon {
namespace {

std::string_view wordFor(const Diagnostic& diagnostic) {
  const bool isError = diagnostic.severity == Severity::error;
  switch (diagnostic.about) {
    case Diagnostic::About::comment: return "Warning: ";
    case Diagnostic::About::template_:
      return isError ? "ERROR (config file): " : "WARNING (config file): ";
    case Diagnostic::About::compile: return isError ? "ERROR: " : "WARNING: ";
    case Diagnostic::About::project: break;
  }
  if (isError) return "error: ";
  return diagnostic.severity == Severity::warning ? "warning: " : "note: ";
}

}  // namespace

std::string lineOf(const Diagnostic& diagnostic) {
  return std::string(wordFor(diagnostic)) + diagnostic.text;
}

std::string logLineOf(const Diagnostic& diagnostic) {
  return diagnostic.inLog.empty() ? lineOf(diagnostic) : diagnostic.inLog;
}

}  // namespace tamrikon
