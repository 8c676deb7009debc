#include "host/module_analysis.h"

#include <algorithm>

#include "vb/conditional_compilation.h"
#include "vb/declarations.h"
#include "vb/names.h"
#include "vb/scanning.h"
#include "vb/statements.h"

namespace tamrikon {
namespace {

/// Whether a line within a procedure could hold a directive or the procedure's end. Nearly all
/// lines of a module can't, and needn't be divided.
bool mayMatterInProcedure(std::string_view line) {
  line = skipBlanks(line);
  if (line.empty()) return false;
  const char first = line.front();
  if (first == '#' || first == 'e' || first == 'E' || isDigit(first)) return true;
  return first != '\'' && line.find(':') != std::string_view::npos;
}

}  // namespace

class ModuleAnalysis::Reader {
 public:
  Reader(ModuleAnalysis& analysis, const std::vector<std::string_view>& lines,
         const ConditionalConstants& constants)
      : analysis_(analysis), lines_(lines), conditional_(constants) {}

  void read() {
    while (lines_.next()) {
      if (inProcedure_ && !mayMatterInProcedure(lines_.text())) continue;
      Statements statements(lines_.text());
      while (statements.next()) {
        if (!statements.text().empty()) take(statements);
      }
      if (analysis_.procedures_.empty() && statements.lastCode() != std::string_view::npos) {
        analysis_.declarationLines_ = lines_.lineAt(statements.lastCode());
      }
    }
    if (inProcedure_) endProcedure(lines_.lastLine());
    if (analysis_.procedures_.empty()) analysis_.declarationLines_ = lines_.lastLine();
  }

 private:
  void take(const Statements& statements) {
    const std::string_view text = statements.text();
    if (conditional_.take(text) || !conditional_.isLive()) return;
    if (inProcedure_) {
      takeInProcedure(statements);
    } else if (inBlock_) {
      const std::string_view ended = endedBlock(text);
      inBlock_ = !isKeyword(ended, "type") && !isKeyword(ended, "enum");
    } else {
      readDeclaration(text, declaration_);
      takeDeclaration(lines_.lineAt(statements.offset()));
    }
  }

  void takeInProcedure(const Statements& statements) {
    std::string_view text = statements.text();
    while (!text.empty() && isDigit(text.front())) text.remove_prefix(1);  // a line number
    const std::string_view ended = endedBlock(text);
    if (isKeyword(ended, "sub") || isKeyword(ended, "function") || isKeyword(ended, "property")) {
      endProcedure(lines_.lineAt(statements.offset() + statements.text().size() - 1));
    }
  }

  void takeDeclaration(int line) {
    switch (declaration_.kind) {
      case DeclarationKind::other: break;
      case DeclarationKind::type:
      case DeclarationKind::enumeration: inBlock_ = true; break;
      case DeclarationKind::procedure: beginProcedure(line); break;
      case DeclarationKind::declare: addDeclare(line); break;
      case DeclarationKind::variable: addMembers(MemberType::variable); break;
      case DeclarationKind::event: addMembers(MemberType::event); break;
      case DeclarationKind::constant: addMembers(MemberType::constant); break;
    }
  }

  void addMembers(MemberType type) {
    for (const std::string_view name : declaration_.names) addMember(name, type);
  }

  /// The index of the member of that name, which is made if there is none.
  std::size_t addMember(std::string_view writtenName, MemberType type) {
    std::string name = knownName(writtenName);
    const auto found = analysis_.byName_.find(name);
    if (found != analysis_.byName_.end()) return found->second;
    MemberRecord& member = analysis_.members_.emplace_back();
    member.name = std::move(name);
    member.writtenName = writtenName;
    member.type = type;
    member.scope = declaration_.scope;
    member.logicalLine = lines_.number();
    member.declarationEnd = lines_.lastLine();
    const std::size_t index = analysis_.members_.size() - 1;
    analysis_.byName_.emplace(member.name, index);
    return index;
  }

  void addDeclare(int line) {
    MemberRecord& member =
        analysis_.members_[addMember(declaration_.names.front(), MemberType::method)];
    int& procedure = member.procedures[static_cast<std::size_t>(ProcKind::procedure)];
    if (procedure != MemberRecord::kNoProcedure) return;
    procedure = MemberRecord::kDeclare;
    member.declareLine = line;
  }

  void beginProcedure(int line) {
    const std::size_t index =
        addMember(declaration_.names.front(),
                  declaration_.isProperty ? MemberType::property : MemberType::method);
    if (analysis_.procedures_.empty()) lastEnd_ = declarationLinesBefore(line);
    const auto number = static_cast<int>(analysis_.procedures_.size());
    analysis_.procedures_.push_back({index, declaration_.procKind, lastEnd_ + 1, line, 0});
    int& slot =
        analysis_.members_[index].procedures[static_cast<std::size_t>(declaration_.procKind)];
    if (slot == MemberRecord::kNoProcedure) slot = number;
    inProcedure_ = true;
  }

  /// The declarations end above the line of the first procedure.
  int declarationLinesBefore(int line) {
    analysis_.declarationLines_ = std::min(analysis_.declarationLines_, line - 1);
    return analysis_.declarationLines_;
  }

  void endProcedure(int line) {
    analysis_.procedures_.back().endLine = line;
    lastEnd_ = line;
    inProcedure_ = false;
  }

  ModuleAnalysis& analysis_;
  LogicalLines lines_;
  ConditionalCompilation conditional_;
  Declaration declaration_;
  bool inProcedure_ = false;
  bool inBlock_ = false;
  int lastEnd_ = 0;
};

ModuleAnalysis::ModuleAnalysis(const std::vector<std::string_view>& lines,
                               const ConditionalConstants& constants) {
  Reader(*this, lines, constants).read();
}

const MemberRecord* ModuleAnalysis::find(std::string_view name) const {
  // Several questions are asked about each member.
  if (lastFound_ < members_.size() && members_[lastFound_].name == name) {
    return &members_[lastFound_];
  }
  const auto found = byName_.find(name);
  if (found == byName_.end()) return nullptr;
  lastFound_ = found->second;
  return &members_[lastFound_];
}

const ProcedureRecord* ModuleAnalysis::procedureAt(int line) const {
  if (line <= declarationLines_ || procedures_.empty()) return nullptr;
  const auto found = std::lower_bound(
      procedures_.begin(), procedures_.end(), line,
      [](const ProcedureRecord& procedure, int wanted) { return procedure.endLine < wanted; });
  return found != procedures_.end() ? &*found : &procedures_.back();
}

}  // namespace tamrikon
