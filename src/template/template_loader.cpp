#include "template/template_loader.h"

#include <utility>

#include "base/case_folding.h"
#include "base/text.h"
#include "platform/text_decoding.h"
#include "template/macro_scanner.h"

namespace tamrikon {

TemplateReader::TemplateReader(std::string_view text, std::string file, MessageLog& log)
    : lines_(splitLines(text)), file_(std::move(file)), log_(log) {}

bool TemplateReader::next(TemplateDefinition& definition) {
  while (nextLine_ < lines_.size()) {
    const std::string_view line = trimLeading(lines_[nextLine_++]);
    if (!line.starts_with('$')) continue;
    const ParsedName parsed = parseMacroName(line);
    const std::string_view tag = line.substr(0, parsed.length());
    if (!parsed.isClosed) report(wrongNameWarning(tag), nextLine_);
    definition.name = parsed.name;
    definition.line = nextLine_;
    if (parsed.name.starts_with("tamrik-")) return readBody(tag.substr(1), definition.value);
    definition.value = trimLeading(line.substr(tag.size()));
    return true;
  }
  return false;
}

/// Reads up to the terminating line of the section whose name, with its closing "$" if it has
/// one, is `tag`.
bool TemplateReader::readBody(std::string_view tag, std::string& body) {
  const std::size_t openingLine = nextLine_;  // as a number, from 1
  const std::string terminator = std::string("$end-").append(tag);
  body.clear();
  while (nextLine_ < lines_.size()) {
    const std::string_view line = lines_[nextLine_++];
    if (trim(line) == terminator) {
      if (!body.empty()) body.pop_back();
      return true;
    }
    body.append(line).push_back('\r');
  }
  report({Diagnostic::About::template_, Severity::error, "section-end",
          "Error in configuration file " + file_ + " on line " + std::to_string(openingLine) +
              ". Terminating tag " + terminator + " missing."},
         openingLine);
  return false;
}

void TemplateReader::report(Diagnostic diagnostic, std::size_t line) {
  diagnostic.place.file = file_;
  diagnostic.place.line = static_cast<int>(line);
  log_.report(diagnostic);
}

std::size_t firstDefinition(std::string_view text, std::string_view name) {
  NoLog log;
  TemplateReader reader(text, {}, log);
  TemplateDefinition definition;
  while (reader.next(definition)) {
    if (equalIgnoringCase(definition.name, name)) return definition.line;
  }
  return 0;
}

}  // namespace tamrikon
