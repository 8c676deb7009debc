#include "source/member_attributes.h"

#include <algorithm>
#include <charconv>

#include "base/utf8.h"
#include "source/edit_group.h"
#include "vb/attribute_text.h"
#include "vb/names.h"
#include "vb/scanning.h"
#include "vb/vb_text.h"

namespace tamrikon {
namespace {

constexpr std::string_view kKeyword = "Attribute";

struct ParsedAttribute {
  std::string_view name;      // of the member; empty for the module
  std::string_view property;  // such as VB_Description
  std::string_view value;     // as it is written
};

/// Reads "PROPERTY = VALUE" from the start of `text`: whether it is there.
bool readProperty(std::string_view text, ParsedAttribute& result) {
  if (!beginsWith(text, "vb_")) return false;
  result.property = takeWord(text);
  text = skipBlanks(text);
  if (!text.starts_with('=')) return false;
  result.value = trimBlanks(text.substr(1));
  return true;
}

/// Parts of "Attribute NAME.PROPERTY = VALUE". The text is one line. A name that stood in brackets
/// may hold dots, quotes and equals signs.
ParsedAttribute parse(std::string_view line) {
  ParsedAttribute result;
  line = skipBlanks(skipBlanks(line).substr(kKeyword.size()));
  if (readProperty(line, result)) return result;
  std::size_t dot = line.find('.');
  while (dot != std::string_view::npos && !readProperty(line.substr(dot + 1), result)) {
    dot = line.find('.', dot + 1);
  }
  if (dot == std::string_view::npos) return {};
  result.name = trimBlanks(line.substr(0, dot));
  if (result.name.starts_with('[') && result.name.ends_with(']')) {
    result.name = result.name.substr(1, result.name.size() - 2);
  }
  return result;
}

bool isOnOneLine(std::string_view attribute) {
  return attribute.find_first_of("\r\n") == std::string_view::npos;
}

/// The attribute on one line; `buffer` keeps it if it stands on several.
std::string_view joined(std::string_view attribute, std::string& buffer) {
  if (isOnOneLine(attribute)) return attribute;
  buffer.clear();
  for (LineReader reader(attribute); reader.next();) {
    std::string_view line = reader.line();
    if (isContinued(line)) line.remove_suffix(1);
    buffer += line;
  }
  return buffer;
}

int readId(std::string_view value) {
  int id = 0;
  const auto result = std::from_chars(value.data(), value.data() + value.size(), id);
  return result.ec == std::errc() ? std::max(id, 0) : 0;
}

}  // namespace

void MemberAttributes::refresh() {
  if (isFresh_ && revision_ == file_.revision()) return;
  isFresh_ = true;
  revision_ = file_.revision();
  byName_.clear();
  for (int line = 0; line <= file_.lineCount(); ++line) {
    for (const std::uint32_t number : file_.attributesBehind(line)) remember(number, line == 0);
  }
}

void MemberAttributes::remember(std::uint32_t number, bool isInHead) {
  struct Known {
    std::string_view text;
    Property property;
    bool isForVariables;
  };
  constexpr Known kKnown[] = {{"vb_name", Property::name, false},
                              {"vb_description", Property::description, false},
                              {"vb_helpid", Property::helpId, false},
                              {"vb_vardescription", Property::description, true},
                              {"vb_varhelpid", Property::helpId, true}};
  std::string buffer;
  const ParsedAttribute parsed = parse(joined(file_.attribute(number), buffer));
  if (parsed.name.empty() != isInHead) return;
  for (const Known& known : kKnown) {
    if (!isKeyword(parsed.property, known.text)) continue;
    byName_[knownName(parsed.name)].push_back({number, known.property, known.isForVariables});
  }
}

std::vector<std::uint32_t> MemberAttributes::find(const AttributeOwner& owner, Property property) {
  refresh();
  std::vector<std::uint32_t> numbers;
  const auto found = byName_.find(owner.name);
  if (found == byName_.end()) return numbers;
  for (const Reference& reference : found->second) {
    if (reference.property != property) continue;
    if (!reference.isForVariables || owner.isVariable) numbers.push_back(reference.number);
  }
  return numbers;
}

std::string MemberAttributes::moduleName() {
  std::string buffer;
  for (const std::uint32_t number : find({}, Property::name)) {
    return readAttributeText(parse(joined(file_.attribute(number), buffer)).value);
  }
  return {};
}

std::string MemberAttributes::description(const AttributeOwner& owner) {
  std::string buffer;
  for (const std::uint32_t number : find(owner, Property::description)) {
    std::string text = readAttributeText(parse(joined(file_.attribute(number), buffer)).value);
    if (!text.empty()) return text;
  }
  return {};
}

int MemberAttributes::helpContextID(const AttributeOwner& owner) {
  const auto held = heldIds_.find(owner.name);
  if (held != heldIds_.end()) return held->second;
  std::string buffer;
  for (const std::uint32_t number : find(owner, Property::helpId)) {
    const int id = readId(parse(joined(file_.attribute(number), buffer)).value);
    if (id != 0) return id;
  }
  return 0;
}

void MemberAttributes::setDescription(const AttributeOwner& owner, std::string_view text) {
  std::erase_if(cuts_, [&](const CutDescription& cut) { return cut.name == owner.name; });
  write(owner, Property::description, text, text.empty());
}

void MemberAttributes::setHelpContextID(const AttributeOwner& owner, int id) {
  heldIds_.erase(std::string(owner.name));
  write(owner, Property::helpId, std::to_string(id), id == 0);
}

void MemberAttributes::holdHelpContextID(const AttributeOwner& owner, int id) {
  if (writesHeldIds_) {
    setHelpContextID(owner, id);
  } else {
    heldIds_[std::string(owner.name)] = std::max(id, 0);
  }
}

void MemberAttributes::write(const AttributeOwner& owner, Property property, std::string_view value,
                             bool isEmpty) {
  const EditGroup group(file_.history());
  const bool isText = property == Property::description;
  const auto subject = isText ? EditSubject::description : EditSubject::helpContextId;
  const std::vector<std::uint32_t> numbers = find(owner, property);
  std::string key(owner.writtenName);
  if (!key.empty()) key += '.';
  key += isText ? (owner.isVariable ? "VB_VarDescription" : "VB_Description")
                : (owner.isVariable ? "VB_VarHelpID" : "VB_HelpID");
  const auto lineWith = [&](std::string start) {
    if (!isText) return start.append(value);
    const std::size_t startLength = std::min(codePointCount(start), kMaxLineLength);
    const std::string_view text = fittingAttributeText(value, kMaxLineLength - startLength);
    if (text.size() < value.size()) noteCut(owner, text, value);
    return start + writtenAttributeText(text);
  };
  for (const std::uint32_t number : numbers) {
    const std::string_view old = file_.attribute(number);
    std::string buffer;
    const std::string_view line = joined(old, buffer);
    const std::string_view oldValue = parse(line).value;
    const std::size_t valueOffset =
        oldValue.empty() ? line.size() : static_cast<std::size_t>(oldValue.data() - line.data());
    std::string newLine = lineWith(std::string(line.substr(0, valueOffset)));
    const std::string_view newValue = std::string_view(newLine).substr(valueOffset);
    const bool isSame = isText ? readAttributeText(oldValue) == readAttributeText(newValue)
                               : readId(oldValue) == readId(newValue);
    if (!isSame) file_.replaceAttribute(number, std::move(newLine), subject);
  }
  if (!numbers.empty() || isEmpty) return;
  const std::string line = lineWith(std::string(kKeyword) + ' ' + key + " = ");
  remember(file_.addAttribute(owner.declarationEnd, line, subject), owner.declarationEnd == 0);
}

void MemberAttributes::noteCut(const AttributeOwner& owner, std::string_view kept,
                               std::string_view all) {
  if (!cuts_.empty() && cuts_.back().name == owner.name) return;  // at another procedure
  cuts_.push_back(
      {std::string(owner.name), owner.declarationEnd, codePointCount(kept), codePointCount(all)});
}

}  // namespace tamrikon
