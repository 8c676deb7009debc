// What is wrong, or worth knowing, and where.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace tamrikon {

enum class Severity { note, warning, error };

/// Where somebody has to look; what isn't known is empty or 0.
struct SourcePlace {
  std::string file;
  int line = 0;  // from 1
  std::string project;
  std::string module;
  std::string member;
};

struct Diagnostic {
  enum class About { comment, template_, compile, project };

  About about = About::project;
  Severity severity = Severity::warning;
  std::string_view
      code;          // names the kind of fault, such as "dead-link"; lives as long as the program
  std::string text;  // can be understood without the place
  SourcePlace place = {};

  /// The whole line of the log, where that isn't what people are told elsewhere.
  std::string inLog = {};
};

/// As one line without its end: how serious it is, and the text.
std::string lineOf(const Diagnostic& diagnostic);

/// The same as the log has it.
std::string logLineOf(const Diagnostic& diagnostic);

using DiagnosticSink = std::function<void(const Diagnostic&)>;

}  // namespace tamrikon
