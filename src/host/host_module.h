// The code of a component, as the IDE surface shows it.
#pragma once

#include <memory>
#include <string>

#include "host/conditional_expression.h"
#include "host/host_member.h"
#include "host/module_analysis.h"
#include "host/source_store.h"
#include "ide/ide.h"

namespace tamrikon {

class HostComponent;

/// Several modules, one for each project that names the file, can stand over one source: an edit
/// through one shows in all.
class HostModule final : public CodeModule {
 public:
  /// All but the name must outlive the module. The source is decoded.
  HostModule(HostComponent& component, Source& source, std::string name,
             const ConditionalConstants& constants);
  ~HostModule() override;

  std::string Name() const override { return name_; }
  VBComponent& Parent() const override;
  tamrikon::Members& Members() const override { return members_; }
  tamrikon::CodePane& CodePane() const override;

  int CountOfLines() const override;
  int CountOfDeclarationLines() const override;

  /// Lines behind the last one are left out; a start outside the module fails.
  std::string Lines(int start, int count) const override;
  void InsertLines(int line, const std::string& text) override;

  /// Fails, and deletes nothing, unless all of the lines are there.
  void DeleteLines(int start, int count) override;

  std::string ProcOfLine(int line, ProcKind& kind) const override;
  int ProcStartLine(const std::string& name, ProcKind kind) const override;
  int ProcCountLines(const std::string& name, ProcKind kind) const override;
  int ProcBodyLine(const std::string& name, ProcKind kind) const override;

  /// Of the lines as they are: made when it is first asked for, and again after an edit.
  const ModuleAnalysis& analysis() const;
  MemberAttributes& attributes() const { return source_.attributes(); }
  HostComponent& component() const { return component_; }

 private:
  struct Place {
    int start;
    int body;
    int count;
  };
  Place placeOf(const std::string& name, ProcKind kind) const;

  HostComponent& component_;
  Source& source_;
  std::string name_;
  const ConditionalConstants& constants_;
  mutable HostMembers members_;
  mutable std::unique_ptr<ModuleAnalysis> analysis_;
  mutable unsigned revision_ = 0;  // of the source when analysis_ was made
};

}  // namespace tamrikon
