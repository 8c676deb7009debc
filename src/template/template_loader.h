// Reading the definitions of a template file.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "base/message_log.h"

namespace tamrikon {

/// A macro line or a section.
struct TemplateDefinition {
  std::string_view name;
  std::string value;
  std::size_t line = 0;  // where it begins, from 1
};

/// Hands out the definitions of a template from top to bottom. Faults are logged as they are met.
class TemplateReader {
 public:
  /// `text`, the file's text, must outlive the reader; `file` is its name for messages.
  TemplateReader(std::string_view text, std::string file, MessageLog& log);

  /// Reads the next definition; false at the end of the file.
  bool next(TemplateDefinition& definition);

 private:
  bool readBody(std::string_view tag, std::string& body);
  void report(Diagnostic diagnostic, std::size_t line);

  std::vector<std::string_view> lines_;
  std::size_t nextLine_ = 0;  // index of the line to read next
  std::string file_;
  MessageLog& log_;
};

/// The line of the first definition of `name`, whose case doesn't matter; 0 if `text` has none.
std::size_t firstDefinition(std::string_view text, std::string_view name);

}  // namespace tamrikon
