#include "platform/registry_text.h"

#include <algorithm>
#include <cstdio>

#include "base/case_folding.h"
#include "base/text.h"
#include "base/utf8.h"

namespace tamrikon {
namespace {

constexpr std::string_view kHeader = "Windows Registry Editor Version 5.00";
constexpr std::string_view kRoot = "HKEY_CURRENT_USER\\";
constexpr std::string_view kNumber = "dword:";
constexpr std::string_view kBytes = "hex";

struct ValueLine {
  std::string name;
  std::string_view data;  // behind the "="
};

bool isControl(char c) {
  return static_cast<unsigned char>(c) < 0x20;
}

bool isBlank(std::string_view line) {
  return line.find_first_not_of(" \t\r") == std::string_view::npos;
}

/// Without the blanks at its end, and the CR where lines end with CR LF.
std::string_view content(std::string_view line) {
  const std::size_t last = line.find_last_not_of(" \t\r");
  return line.substr(0, last + 1);
}

/// The key of a line such as "[HKEY_CURRENT_USER\Software]", without the root; nothing for other
/// lines. A key of another root is empty.
std::optional<std::string_view> keyOf(std::string_view line) {
  line = content(line);
  if (line.size() < 2 || line.front() != '[' || line.back() != ']') return std::nullopt;
  line = line.substr(1, line.size() - 2);
  return startsWithIgnoringCase(line, kRoot) ? line.substr(kRoot.size()) : std::string_view();
}

std::string quoted(std::string_view text) {
  std::string result = "\"";
  for (const char c : text) {
    switch (c) {
      case '\\': result += "\\\\"; break;
      case '"': result += "\\\""; break;
      case '\r': result += "\\r"; break;
      case '\n': result += "\\n"; break;
      default: result += c;
    }
  }
  return result += '"';
}

/// Takes a quoted text from the beginning of `rest`; nothing if there is none.
std::optional<std::string> takeQuoted(std::string_view& rest) {
  if (!rest.starts_with('"')) return std::nullopt;
  std::string text;
  for (std::size_t at = 1; at < rest.size(); ++at) {
    if (rest[at] == '"') {
      rest.remove_prefix(at + 1);
      return text;
    }
    if (rest[at] != '\\') {
      text += rest[at];
      continue;
    }
    if (++at == rest.size()) break;
    switch (rest[at]) {
      case 'r': text += '\r'; break;
      case 'n': text += '\n'; break;
      case '\\':
      case '"': text += rest[at]; break;
      default: return std::nullopt;
    }
  }
  return std::nullopt;
}

/// The name and the data of a line such as "Name"="text"; nothing for other lines.
std::optional<ValueLine> valueOf(std::string_view line) {
  std::string_view rest = content(line);
  ValueLine value;
  if (rest.starts_with('@')) {
    rest.remove_prefix(1);
  } else {
    std::optional<std::string> name = takeQuoted(rest);
    if (!name) return std::nullopt;
    value.name = std::move(*name);
  }
  if (!rest.starts_with('=')) return std::nullopt;
  value.data = rest.substr(1);
  return value;
}

std::optional<RegistryValue> dataOf(std::string_view data) {
  if (startsWithIgnoringCase(data, kNumber)) {
    const std::string digits(data.substr(kNumber.size()));
    constexpr std::size_t kMostDigits = 8;
    if (digits.empty() || digits.size() > kMostDigits ||
        digits.find_first_not_of("0123456789abcdefABCDEF") != std::string::npos) {
      return std::nullopt;
    }
    return static_cast<std::uint32_t>(std::stoul(digits, nullptr, 16));
  }
  std::optional<std::string> text = takeQuoted(data);
  if (!text || !data.empty()) return std::nullopt;
  return *std::move(text);
}

std::string lineOf(const RegistryEntry& entry) {
  std::string line = entry.name.empty() ? "@" : quoted(entry.name);
  if (const auto* number = std::get_if<std::uint32_t>(&entry.value)) {
    char digits[9];
    std::snprintf(digits, sizeof digits, "%08x", static_cast<unsigned>(*number));
    return line.append("=").append(kNumber).append(digits);
  }
  return line += '=' + quoted(std::get<std::string>(entry.value));
}

bool isBelow(std::string_view key, std::string_view above) {
  return key.size() > above.size() && key[above.size()] == '\\' &&
         startsWithIgnoringCase(key, above);
}

}  // namespace

RegistryText::RegistryText() : lines_{std::string(kHeader), ""} {}

std::optional<RegistryText> RegistryText::parse(std::string_view bytes) {
  if (bytes.find('\0') != std::string_view::npos) return std::nullopt;
  const std::string_view text = withoutUtf8Mark(bytes);
  if (content(text.substr(0, text.find('\n'))) != kHeader) return std::nullopt;
  RegistryText result;
  result.lines_.clear();
  for (const std::string_view line : split(bytes, '\n')) result.lines_.emplace_back(line);
  if (result.lines_.front().ends_with('\r')) result.lineEnd_ = "\r\n";
  return result;
}

std::string RegistryText::bytes() const {
  return join(lines_, "\n");
}

std::size_t RegistryText::sectionEnd(std::size_t header) const {
  const auto next =
      std::find_if(lines_.begin() + static_cast<std::ptrdiff_t>(header) + 1, lines_.end(),
                   [](const std::string& line) { return !!keyOf(line); });
  return static_cast<std::size_t>(next - lines_.begin());
}

std::vector<RegistryText::Place> RegistryText::sectionsOf(std::string_view key) const {
  std::vector<Place> sections;
  for (std::size_t i = 0; i < lines_.size(); ++i) {
    const auto found = keyOf(lines_[i]);
    if (found && equalIgnoringCase(*found, key)) sections.push_back({i, sectionEnd(i)});
  }
  return sections;
}

/// Bytes may go on in the next line, behind a "\".
std::optional<RegistryText::Place> RegistryText::valueIn(const Place& section,
                                                         std::string_view name) const {
  std::optional<Place> found;
  for (std::size_t i = section.begin + 1; i < section.end; ++i) {
    const std::optional<ValueLine> value = valueOf(lines_[i]);
    if (!value) continue;
    const std::size_t first = i;
    if (startsWithIgnoringCase(value->data, kBytes)) {
      while (i + 1 < section.end && content(lines_[i]).ends_with('\\')) ++i;
    }
    if (equalIgnoringCase(value->name, name)) found = Place{first, i + 1};
  }
  return found;
}

std::optional<RegistryValue> RegistryText::get(std::string_view key, std::string_view name) const {
  // As when such a text is imported, the last one counts.
  std::optional<Place> last;
  for (const Place& section : sectionsOf(key)) {
    if (const std::optional<Place> found = valueIn(section, name)) last = found;
  }
  return last ? dataOf(valueOf(lines_[last->begin])->data) : std::nullopt;
}

std::vector<std::string> RegistryText::subkeys(std::string_view key) const {
  std::vector<std::string> names;
  for (const std::string& line : lines_) {
    const auto found = keyOf(line);
    if (!found || !isBelow(*found, key)) continue;
    const std::string_view rest = found->substr(key.size() + 1);
    const std::string name(rest.substr(0, rest.find('\\')));
    const bool isNew = std::none_of(names.begin(), names.end(), [&](const std::string& known) {
      return equalIgnoringCase(known, name);
    });
    if (isNew) names.push_back(name);
  }
  return names;
}

/// Where a line can be added to a section, before the blank lines at its end.
std::size_t RegistryText::endOfText(const Place& section) const {
  std::size_t end = section.end;
  while (end > section.begin + 1 && isBlank(lines_[end - 1])) --end;
  return end;
}

void RegistryText::put(const RegistryEntry& entry) {
  const std::string end(lineEnd_.substr(0, lineEnd_.size() - 1));
  const std::string line = lineOf(entry) + end;
  const std::vector<Place> sections = sectionsOf(entry.key);
  for (auto section = sections.rbegin(); section != sections.rend(); ++section) {
    const std::optional<Place> old = valueIn(*section, entry.name);
    if (!old) continue;
    lines_[old->begin] = line;
    lines_.erase(lines_.begin() + static_cast<std::ptrdiff_t>(old->begin) + 1,
                 lines_.begin() + static_cast<std::ptrdiff_t>(old->end));
    return;
  }
  if (!lines_.back().empty()) {  // the last line has no end
    lines_.back() += end;
    lines_.emplace_back();
  }
  if (sections.empty()) {
    lines_.pop_back();
    if (!isBlank(lines_.back())) lines_.push_back(end);
    lines_.push_back("[" + std::string(kRoot) + entry.key + "]" + end);
    lines_.push_back(line);
    lines_.emplace_back();
    return;
  }
  const std::size_t place = std::min(endOfText(sections.back()), lines_.size() - 1);
  lines_.insert(lines_.begin() + static_cast<std::ptrdiff_t>(place), line);
}

void RegistryText::remove(std::string_view key) {
  for (std::size_t i = 0; i < lines_.size(); ++i) {
    const auto found = keyOf(lines_[i]);
    if (!found || !(equalIgnoringCase(*found, key) || isBelow(*found, key))) continue;
    // The blank lines above go with it, and those below stay to divide its neighbours.
    const std::size_t end = endOfText({i, sectionEnd(i)});
    while (i > 1 && isBlank(lines_[i - 1])) --i;
    lines_.erase(lines_.begin() + static_cast<std::ptrdiff_t>(i),
                 lines_.begin() + static_cast<std::ptrdiff_t>(end));
    --i;
  }
}

bool RegistryText::canHold(const RegistryEntry& entry) {
  const auto* text = std::get_if<std::string>(&entry.value);
  const auto hasNul = [](std::string_view part) { return part.find('\0') != part.npos; };
  const bool isKey = !entry.key.empty() && !entry.key.ends_with('\\') &&
                     std::none_of(entry.key.begin(), entry.key.end(), isControl);
  return isKey && !hasNul(entry.name) && (text == nullptr || !hasNul(*text));
}

}  // namespace tamrikon
