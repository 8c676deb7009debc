// The members and procedures of a module, found in its visible lines.
#pragma once

#include <array>
#include <cstddef>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "base/case_folding.h"
#include "ide/ide.h"
#include "vb/conditional_expression.h"

namespace tamrikon {

struct MemberRecord {
  std::string name;         // safe in a path
  std::string writtenName;  // as it stands in the source, brackets cut
  MemberType type = MemberType::method;
  Scope scope = Scope::public_;
  int logicalLine = 0;     // of the declaration
  int declarationEnd = 0;  // its last physical line, with what else stands on it

  /// By ProcKind: an index into ModuleAnalysis::procedures(), or one of those below.
  std::array<int, 4> procedures{kNoProcedure, kNoProcedure, kNoProcedure, kNoProcedure};
  int declareLine = 0;

  static constexpr int kNoProcedure = -1;
  static constexpr int kDeclare = -2;
};

struct ProcedureRecord {
  std::size_t member = 0;  // index of the member that bears its name
  ProcKind kind = ProcKind::procedure;
  int startLine = 0;  // with the blanks and comments above the declaration
  int bodyLine = 0;
  int endLine = 0;
};

class ModuleAnalysis {
 public:
  /// `lines` needn't outlive the analysis.
  ModuleAnalysis(const std::vector<std::string_view>& lines, const ConditionalConstants& constants);
  ModuleAnalysis(const ModuleAnalysis&) = delete;
  ModuleAnalysis& operator=(const ModuleAnalysis&) = delete;

  /// In the order of their first statements.
  const std::deque<MemberRecord>& members() const { return members_; }
  const std::vector<ProcedureRecord>& procedures() const { return procedures_; }
  int declarationLines() const { return declarationLines_; }

  /// The member of that name without regard to case, or null.
  const MemberRecord* find(std::string_view name) const;

  /// The procedure that a line within the module belongs to; null in the declarations.
  const ProcedureRecord* procedureAt(int line) const;

 private:
  class Reader;

  std::deque<MemberRecord> members_;
  std::vector<ProcedureRecord> procedures_;
  int declarationLines_ = 0;
  std::unordered_map<std::string_view, std::size_t, CaseInsensitiveHash, CaseInsensitiveEqual>
      byName_;                         // the keys are views into members_
  mutable std::size_t lastFound_ = 0;  // index of a member, if it has any
};

}  // namespace tamrikon
