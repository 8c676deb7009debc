#include "host/host_module.h"

#include <algorithm>
#include <utility>

#include "host/host_component.h"
#include "host/host_project.h"
#include "vb/names.h"

namespace tamrikon {

EditGroup::EditGroup(HostModule& module) : EditGroup(module.source().file().history()) {}

HostModule::HostModule(HostComponent& component, Source& source, std::string name,
                       const ConditionalConstants& constants)
    : component_(component),
      source_(source),
      nameInProject_(std::move(name)),
      constants_(constants),
      members_(*this) {
  readName();
}

HostModule::~HostModule() = default;

void HostModule::readName() const {
  const std::string ownName = source_.attributes().moduleName();
  name_ = identifierFrom(ownName.empty() ? nameInProject_ : ownName);
  generation_ = source_.generation();
}

std::string HostModule::Name() const {
  if (generation_ != source_.generation()) readName();
  return name_;
}

VBComponent& HostModule::Parent() const {
  return component_;
}

tamrikon::CodePane& HostModule::CodePane() const {
  return component_.project().screen().codePane(const_cast<HostModule&>(*this));
}

const ModuleAnalysis& HostModule::analysis() const {
  const SourceFile& file = source_.file();
  if (!analysis_ || revision_ != file.revision()) {
    auto analysis = std::make_unique<ModuleAnalysis>(file.lines(), constants_);
    members_.update(*analysis);
    analysis_ = std::move(analysis);
    revision_ = file.revision();
  }
  return *analysis_;
}

int HostModule::CountOfLines() const {
  return source_.file().lineCount();
}

int HostModule::CountOfDeclarationLines() const {
  return analysis().declarationLines();
}

std::string HostModule::Lines(int start, int count) const {
  if (count == 0) return {};
  if (start < 1 || start > CountOfLines() || count < 0) throw IdeError("no such line");
  return source_.file().text(start, std::min(count, CountOfLines() - start + 1));
}

void HostModule::InsertLines(int line, const std::string& text) {
  if (line < 1 || line > CountOfLines() + 1) throw IdeError("no such line");
  source_.file().insertLines(line, text);
}

void HostModule::requireLines(int start, int count) const {
  if (start < 1 || count < 0 || start > CountOfLines() + 1 || count > CountOfLines() - start + 1) {
    throw IdeError("no such line");
  }
}

void HostModule::DeleteLines(int start, int count) {
  requireLines(start, count);
  source_.file().deleteLines(start, count);
}

void HostModule::replaceLines(int first, int count, const std::string& text, EditKind kind) {
  requireLines(first, count);
  source_.file().replaceLines(first, count, text, kind);
}

std::string HostModule::ProcOfLine(int line, ProcKind& kind) const {
  const bool exists = line >= 1 && line <= CountOfLines();
  const ProcedureRecord* procedure = exists ? analysis().procedureAt(line) : nullptr;
  if (procedure == nullptr) throw IdeError("the line is in no procedure");
  kind = procedure->kind;
  return analysis().members()[procedure->member].name;
}

std::optional<HostModule::Place> HostModule::findPlace(const std::string& name,
                                                       ProcKind kind) const {
  const ModuleAnalysis& found = analysis();
  const MemberRecord* member = found.find(name);
  const int index = member == nullptr ? MemberRecord::kNoProcedure
                                      : member->procedures[static_cast<std::size_t>(kind)];
  if (index == MemberRecord::kNoProcedure) return std::nullopt;
  if (index == MemberRecord::kDeclare) {
    return Place{1, member->declareLine, found.declarationLines()};
  }
  const ProcedureRecord& procedure = found.procedures()[static_cast<std::size_t>(index)];
  return Place{procedure.startLine, procedure.bodyLine,
               procedure.endLine - procedure.startLine + 1};
}

HostModule::Place HostModule::placeOf(const std::string& name, ProcKind kind) const {
  const std::optional<Place> place = findPlace(name, kind);
  if (!place) throw IdeError("there is no procedure " + name);
  return *place;
}

bool HostModule::HasProc(const std::string& name, ProcKind kind) const {
  return findPlace(name, kind).has_value();
}

int HostModule::ProcStartLine(const std::string& name, ProcKind kind) const {
  return placeOf(name, kind).start;
}

int HostModule::ProcCountLines(const std::string& name, ProcKind kind) const {
  return placeOf(name, kind).count;
}

int HostModule::ProcBodyLine(const std::string& name, ProcKind kind) const {
  return placeOf(name, kind).body;
}

}  // namespace tamrikon
