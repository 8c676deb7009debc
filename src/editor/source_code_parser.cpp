#include "editor/source_code_parser.h"

#include <algorithm>
#include <utility>

#include "base/case_folding.h"
#include "base/keyed_list.h"
#include "base/text.h"
#include "model/wrappers.h"
#include "vb/proc_definition.h"
#include "vb/vb_text.h"

namespace tamrikon {
namespace {

using Names = SourceCodeParser::Names;

bool isClass(const VBComponent& component) {
  return hasCode(component.Type()) && !isStandardModule(component.Type()) &&
         component.CodeModule() != nullptr;
}

std::vector<CodeModule*> projectClasses(const VBE& ide) {
  std::vector<CodeModule*> classes;
  tryStep([&] {
    const VBComponents& components = ide.ActiveVBProject().VBComponents();
    for (int number = 1; number <= components.Count(); ++number) {
      const VBComponent& component = components.Item(number);
      if (isClass(component)) classes.push_back(component.CodeModule());
    }
  });
  return classes;
}

std::string declarationLines(const CodeModule& cmo) {
  std::string text;
  tryStep([&] {
    const int count = cmo.CountOfDeclarationLines();
    if (count > 0) text = cmo.Lines(1, count);
  });
  return text;
}

bool cutWord(std::string_view& text, std::string_view word) {
  if (!text.starts_with(word)) return false;
  text = trimLeading(text.substr(word.size()));
  return true;
}

Names linesOfSource(const Wrapper& wrapper) {
  const auto lines = [](const std::string& text) {
    return SourceCodeParser::joinContinuedLines(text, "\r");
  };
  switch (wrapper.kind()) {
    case WrapperKind::module:
      return SourceCodeParser::joinContinuedLines(declarationLines(wrapper.cmo()), "\r\n");
    case WrapperKind::method: return lines(static_cast<const Smethod&>(wrapper).getSourceCode());
    case WrapperKind::event: return lines(static_cast<const Sevent&>(wrapper).getSourceCode());
    case WrapperKind::propGet:
    case WrapperKind::propLet:
    case WrapperKind::propSet:
      return lines(static_cast<const PropertyWrapper&>(wrapper).getSourceCode({}));
    case WrapperKind::variable:
    case WrapperKind::constant: break;  // their declaration is all there is
  }
  return {};
}

void addDeclaredTypes(const Wrapper& wrapper, Names& types) {
  if (wrapper.kind() == WrapperKind::module) return;
  if (wrapper.kind() == WrapperKind::variable || wrapper.kind() == WrapperKind::constant) {
    types.push_back(static_cast<const DataWrapper&>(wrapper).getReturns());
    return;
  }
  ProcDefinition definition;
  definition.pLine = wrapper.declaration();
  definition.parse();
  for (const argument& arg : definition.args) types.push_back(arg.aType);
  if (!definition.returns.empty()) types.push_back(definition.returns);
}

void addTypesOfLine(std::string_view line, Names& types) {
  line = trimLeading(line);
  if (!cutWord(line, "Dim ") && !cutWord(line, "Private ") && !cutWord(line, "Public ") &&
      !cutWord(line, "Static ")) {
    return;
  }
  constexpr std::string_view kSeparator = ", ";
  line = stripLineComment(line);
  while (!line.empty()) {
    const std::size_t end = inStrOutsideQuotes(line, kSeparator);
    argument variable;
    variable.parseVariable(end == 0 ? line : line.substr(0, end - 1));
    std::string_view type = variable.aType;
    cutWord(type, "New ");
    types.emplace_back(type);
    line.remove_prefix(end == 0 ? line.size() : end - 1 + kSeparator.size());
  }
}

}  // namespace

Names SourceCodeParser::getImplements(const CodeModule& cmo) const {
  Names classes;
  for (const std::string& line : joinContinuedLines(declarationLines(cmo), "\r\n")) {
    std::string_view text = trimLeading(line);
    if (cutWord(text, "Implements ")) classes.push_back(std::string(stripLineComment(text)) + "\r");
  }
  return classes;
}

Names SourceCodeParser::getWhoImplements(const CodeModule& cmo, const VBE& VBInstance) const {
  KeyedList<std::string> classes;
  const std::string name = cmo.Name() + "\r";
  for (const CodeModule* other : projectClasses(VBInstance)) {
    if (isStringInCollection(name, getImplements(*other)).empty()) continue;
    classes.add(other->Name(), other->Name());
  }
  return {classes.begin(), classes.end()};
}

Names SourceCodeParser::getUsedObjects(const Wrapper& wrapper) const {
  Names types;
  Names lines;
  tryStep([&] { lines = linesOfSource(wrapper); });
  tryStep([&] { addDeclaredTypes(wrapper, types); });
  for (const std::string& line : lines) addTypesOfLine(line, types);
  return types;
}

Names SourceCodeParser::filterProjectClasses(const Names& classes, const VBE& VBInstance) const {
  Names all;
  for (const CodeModule* module : projectClasses(VBInstance)) all.push_back(module->Name());
  KeyedList<std::string> found;
  for (const std::string& item : classes) {
    const std::string name = isStringInCollection(item, all);
    if (!name.empty()) found.add(name, name);
  }
  return {found.begin(), found.end()};
}

std::string SourceCodeParser::isStringInCollection(std::string_view str, const Names& col) {
  const auto item = std::find_if(col.begin(), col.end(), [&](const std::string& candidate) {
    return equalIgnoringCase(candidate, str);
  });
  return item == col.end() ? std::string() : *item;
}

Names SourceCodeParser::joinContinuedLines(std::string_view text, std::string_view separator) {
  Names lines;
  std::size_t group = 0;  // the line that those that continue it go to
  bool continues = false;
  for (bool more = true; more;) {
    const std::size_t end = text.find(separator);
    more = end != std::string_view::npos;
    std::string_view line = text.substr(0, end);
    if (more) text.remove_prefix(end + separator.size());
    if (!continues) group = lines.size();
    lines.emplace_back();
    continues = isContinued(trimLeading(line));
    if (continues) line.remove_suffix(1);
    lines[group] += line;
  }
  return lines;
}

std::vector<std::string> findProposals(const Wrapper& member, const VBE& VBInstance) {
  const SourceCodeParser parser;
  Names lines;
  const auto add = [&](const Names& classes, std::string_view mark) {
    for (const std::string& name : parser.filterProjectClasses(classes, VBInstance)) {
      lines.push_back(std::string(name).append(" ").append(mark));
    }
  };
  if (member.kind() == WrapperKind::module) {
    Names implemented = parser.getImplements(member.cmo());
    for (std::string& name : implemented) name.pop_back();
    add(implemented, "[implemented]");
    add(parser.getWhoImplements(member.cmo(), VBInstance), "[implements]");
  }
  add(parser.getUsedObjects(member), "[used]");
  return lines;
}

}  // namespace tamrikon
