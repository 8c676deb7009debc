#include "host/project_file.h"

#include <algorithm>

#include "base/line_reader.h"
#include "base/text.h"
#include "base/utf8.h"
#include "source/source_head.h"
#include "vb/scanning.h"

namespace tamrikon {
namespace {

struct ComponentKey {
  std::string_view key;
  ComponentType type;
  bool hasName;  // "Name; path" rather than a path alone
};

constexpr ComponentKey kComponentKeys[] = {
    {"module", ComponentType::standardModule, true},
    {"class", ComponentType::classModule, true},
    {"form", ComponentType::form, false},
    {"propertypage", ComponentType::propertyPage, false},
    {"usercontrol", ComponentType::userControl, false},
    {"userdocument", ComponentType::userDocument, false},
    {"designer", ComponentType::designer, false},
    {"resfile32", ComponentType::resourceFile, false},
    {"relateddoc", ComponentType::relatedDocument, false},
};

/// Whether the line begins with "KEY=", without blanks before it.
bool beginsWithKey(std::string_view line, std::string_view key) {
  if (!beginsWith(line, key)) return false;
  return skipBlanks(line.substr(key.size())).starts_with('=');
}

}  // namespace

std::string_view withoutQuotes(std::string_view text) {
  text = trimBlanks(text);
  if (text.starts_with('"')) text.remove_prefix(1);
  if (text.ends_with('"')) text.remove_suffix(1);
  return text;
}

ProjectFile::ProjectFile(std::string bytes) : bytes_(std::move(bytes)) {
  isUtf8_ = bytes_.starts_with(kUtf8Mark) || (!isAscii(bytes_) && isValidUtf8(bytes_));
  readLines();
}

bool ProjectFile::isProject(std::string_view bytes) {
  LineReader reader(withoutUtf8Mark(bytes));
  bool isFirst = true;
  for (; reader.next(); isFirst = false) {
    std::string_view line = reader.line();
    if (isFirst && (isAttributeLine(line) || isKeyword(takeField(line), "version"))) return false;
    if (trimBlanks(reader.line()).starts_with('[')) return false;
    if (beginsWithKey(reader.line(), "type")) return true;
  }
  return false;
}

// No double-byte page uses "=", ";", quotes or blanks as second bytes, so lines can be divided
// before they are decoded. Paths can't: the second byte of a character may be a backslash.
void ProjectFile::readLines() {
  const std::size_t start = bytes_.size() - withoutUtf8Mark(bytes_).size();
  insertionOffset_ = start;
  LineReader reader(bytes_, start);
  while (reader.next()) {
    const std::string_view line = trimBlanks(reader.line());
    if (line.starts_with('[')) break;
    if (!line.empty()) insertionOffset_ = reader.offset();
    const std::size_t equals = line.find('=');
    if (equals == std::string_view::npos) continue;
    readLine(trimBlanks(line.substr(0, equals)), line.substr(equals + 1));
  }
}

void ProjectFile::readLine(std::string_view key, std::string_view value) {
  const auto component =
      std::find_if(std::begin(kComponentKeys), std::end(kComponentKeys),
                   [&](const ComponentKey& entry) { return isKeyword(key, entry.key); });
  if (component != std::end(kComponentKeys)) {
    std::string_view path = value;
    std::string_view name;
    if (component->hasName && value.find(';') != std::string_view::npos) {
      name = cutField(path, ';');
    }
    components_.push_back({component->type, trimBlanks(name), withoutQuotes(path)});
  } else if (isKeyword(key, "name") && name_.empty()) {
    name_ = withoutQuotes(value);
  } else if (isKeyword(key, "condcomp") && conditionalConstants_.empty()) {
    conditionalConstants_ = withoutQuotes(value);
  } else if (isKeyword(key, "helpfile") && !helpFileValue_) {
    helpFileValue_ = value;
  }
}

void ProjectFile::setCodePage(const CodePage& page) {
  page_ = isUtf8_ ? CodePage::find(kUtf8CodePage) : &page;
  if (helpFileValue_) helpFile_ = text(withoutQuotes(*helpFileValue_));
}

std::string ProjectFile::text(std::string_view bytes) const {
  return page_->decode(bytes);
}

void ProjectFile::setHelpFile(const std::string& path) {
  std::string line = path.substr(0, path.find_first_of("\r\n"));
  if (line == helpFile_) return;
  changed_ = true;
  isAsRead_ = false;
  helpFile_ = std::move(line);
}

std::optional<std::string> ProjectFile::bytes(LackingCharacter& lacking) const {
  if (isAsRead_) return bytes_;
  const std::size_t start = helpFileValue_
                                ? static_cast<std::size_t>(helpFileValue_->data() - bytes_.data())
                                : insertionOffset_;
  const std::size_t length = helpFileValue_ ? helpFileValue_->size() : 0;
  std::string result = bytes_.substr(0, start);
  const std::string_view lineEnd = textOf(firstLineEnd(bytes_));
  if (!helpFileValue_) {
    const bool isLineStart =
        result.empty() || result == kUtf8Mark || result.ends_with('\n') || result.ends_with('\r');
    if (!isLineStart) result += lineEnd;
    result += "HelpFile=";
  }
  std::size_t offset = 0;
  const std::optional<std::string> encoded = page_->encodeExactly(helpFile_, offset);
  if (!encoded) {
    std::string lineBefore;
    for (LineReader reader(result); reader.next(); ++lacking.line) {
      lineBefore = text(reader.line()) + '"' + helpFile_.substr(0, offset);
    }
    lacking.column = static_cast<int>(codePointCount(lineBefore)) + 1;
    lacking.codePoint = readCodePoint(helpFile_, offset);
    return std::nullopt;
  }
  result += '"' + *encoded + '"';
  if (!helpFileValue_) result += lineEnd;
  return result.append(bytes_, start + length);
}

}  // namespace tamrikon
