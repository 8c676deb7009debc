#include "model/wrappers.h"

#include "model/page_context.h"
#include "vb/proc_definition.h"

namespace tamrikon {
namespace {

ProcDefinition definitionOf(const Wrapper& wrapper) {
  ProcDefinition definition;
  definition.pLine = wrapper.declaration();
  return definition;
}

std::string ideDescriptionOrNothing(const Wrapper& wrapper) {
  std::string text;
  tryStep([&] { text = wrapper.ideDescription(); });
  return text;
}

CommentLines skeletonOf(const Wrapper& wrapper, ArgumentStyle style,
                        const ProjectSettings& settings) {
  ProcDefinition definition = definitionOf(wrapper);
  definition.parse();
  return procedureSkeleton(ideDescriptionOrNothing(wrapper), definition, style, settings);
}

/// The lines of a procedure from its declaration to its end: what stands above belongs to the
/// comment. Empty if there is no such procedure.
std::string procedureLines(const Wrapper& wrapper) {
  const ProcKind kind = wrapper.traits().procKind;
  if (!wrapper.cmo().HasProc(wrapper.name(), kind)) return {};
  const int count = wrapper.cmo().ProcCountLines(wrapper.name(), kind);
  const int start = wrapper.cmo().ProcStartLine(wrapper.name(), kind);
  const int location = wrapper.CodeLocation();
  const int length = count - (location - start);
  return wrapper.source().lines().getLinesText(location, location + length - 1);
}

}  // namespace

CommentLines Smethod::generateComment(const ProjectSettings& settings) const {
  return skeletonOf(*this, ArgumentStyle::withPresence, settings);
}

std::string Smethod::getSourceCode() const {
  std::string text;
  tryStep([&] {
    const int count = cmo().ProcCountLines(name(), ProcKind::procedure);
    const bool isDeclare = count > 0 && cmo().ProcStartLine(name(), ProcKind::procedure) == 1 &&
                           count == cmo().CountOfDeclarationLines();
    text = isDeclare ? declaration() : procedureLines(*this);
  });
  return text;
}

std::string Smethod::pageReturn(const ParsedComment& parsed) const {
  return parsed.getReturn();
}

std::string Smethod::pageSource(PageContext&) const {
  return getSourceCode();
}

CommentLines Sevent::generateComment(const ProjectSettings& settings) const {
  return skeletonOf(*this, ArgumentStyle::withPresence, settings);
}

std::string Sevent::getSourceCode() const {
  std::string text;
  tryStep([&] { text = procedureLines(*this); });
  return text.empty() ? declaration() : text;
}

std::string Sevent::pageReturn(const ParsedComment&) const {
  return {};
}

std::string Sevent::pageSource(PageContext&) const {
  return getSourceCode();
}

int PropertyWrapper::CodeLocation() const {
  if (member().Type() != MemberType::property) return MemberWrapper::CodeLocation();
  return cmo().ProcBodyLine(name(), traits().procKind);
}

CommentLines PropertyWrapper::generateComment(const ProjectSettings& settings) const {
  return skeletonOf(*this, ArgumentStyle::plain, settings);
}

LastArgument PropertyWrapper::generateCommentForLastArgument(
    const ProjectSettings& settings) const {
  ProcDefinition definition = definitionOf(*this);
  definition.parse();
  return lastArgument(definition, settings);
}

std::string PropertyWrapper::getSourceCode(const WrapperCollections& wrappers) const {
  const auto procedure = [&](WrapperKind wanted, const WrapperList& list) {
    if (wanted == kind()) return static_cast<const Wrapper*>(this);
    const std::string link =
        source().name() + "." + name() + std::string(traitsOf(wanted, source().type()).linkMark);
    const Wrapper* found = findWrapper(list, link);
    return found != nullptr && &found->cmo() == &cmo() ? found : nullptr;
  };
  std::string text;
  tryStep([&] {
    for (const Wrapper* wrapper : {procedure(WrapperKind::propGet, wrappers.gets),
                                   procedure(WrapperKind::propSet, wrappers.sets),
                                   procedure(WrapperKind::propLet, wrappers.lets)}) {
      if (wrapper == nullptr) continue;
      const std::string lines = procedureLines(*wrapper);
      if (lines.empty()) break;
      if (!text.empty()) text += "\r\r";
      text += lines;
    }
  });
  return text.empty() ? declaration() : text;
}

std::string PropertyWrapper::pageReturn(const ParsedComment&) const {
  return {};
}

std::string PropertyWrapper::pageSource(PageContext& context) const {
  return getSourceCode(context.wrappers);
}

std::string SpropGet::getReturns() const {
  ProcDefinition definition = definitionOf(*this);
  if (member().Type() == MemberType::variable) {
    definition.parseVariableReturn();
  } else {
    definition.parsePropGetReturn();
  }
  return definition.returns;
}

std::string SpropGet::pageReturn(const ParsedComment& parsed) const {
  return hasNoLetSet ? parsed.getReturn() : std::string();
}

std::string SpropSet::getExistingCommentForLastArgument(const ProjectSettings& settings) const {
  const TagWords words(settings.userName);
  const ParsedComment parsed = parseComment(comment, words, indentsFor(settings));
  const ParsedComment::Entries entries = parsed.getParamList();
  return entries.empty() ? std::string() : tagLine("@param", entries.back());
}

CommentLines DataWrapper::generateComment(const ProjectSettings&) const {
  return variableSkeleton();
}

std::string Svariable::getReturns() const {
  ProcDefinition definition = definitionOf(*this);
  definition.parseVariableReturn();
  return definition.returns;
}

std::string Sconstant::getReturns() const {
  ProcDefinition definition = definitionOf(*this);
  definition.parseConstantReturn();
  return definition.returns;
}

CommentLines Smodule::generateComment(const ProjectSettings& settings) const {
  return moduleSkeleton(ideDescriptionOrNothing(*this), settings);
}

}  // namespace tamrikon
