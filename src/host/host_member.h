// The members of a module, as the IDE surface shows them.
#pragma once

#include <string>
#include <unordered_map>
#include <vector>

#include "base/case_folding.h"
#include "host/module_analysis.h"
#include "ide/ide.h"
#include "source/member_attributes.h"

namespace tamrikon {

class HostModule;

/// Stands for its name: it lasts as long as the module, and while an edit has taken the member
/// away, all calls but Name() and Collection() fail.
class HostMember final : public Member {
 public:
  HostMember(HostModule& module, std::string name) : module_(module), name_(std::move(name)) {}

  std::string Name() const override;
  MemberType Type() const override;
  tamrikon::Scope Scope() const override;
  tamrikon::Members& Collection() const override;
  int CodeLocation() const override;
  std::string Description() const override;
  void setDescription(const std::string& text) override;
  int HelpContextID() const override;
  void setHelpContextID(int id) override;
  void holdHelpContextID(int id) override;

 private:
  friend class HostMembers;

  const MemberRecord& record() const;
  AttributeOwner owner() const;

  HostModule& module_;
  std::string name_;
  const MemberRecord* record_ = nullptr;  // null while there is no such member
};

class HostMembers final : public Members {
 public:
  explicit HostMembers(HostModule& module) : module_(module) {}

  int Count() const override;
  Member& Item(int number) const override;
  CodeModule& Parent() const override;

  /// Makes the members those of a new analysis, which must last until the next call.
  void update(const ModuleAnalysis& analysis);

 private:
  HostModule& module_;
  std::vector<HostMember*> current_;
  std::unordered_map<std::string, HostMember, CaseInsensitiveHash, CaseInsensitiveEqual> all_;
};

}  // namespace tamrikon
