#include "host/host_member.h"

#include "host/host_module.h"

namespace tamrikon {

const MemberRecord& HostMember::record() const {
  module_.analysis();
  if (record_ == nullptr) throw IdeError("there is no member " + name_ + " any more");
  return *record_;
}

AttributeOwner HostMember::owner() const {
  const MemberRecord& member = record();
  return {member.name, member.writtenName, member.type == MemberType::variable,
          member.declarationEnd};
}

std::string HostMember::Name() const {
  return name_;
}
MemberType HostMember::Type() const {
  return record().type;
}
tamrikon::Scope HostMember::Scope() const {
  return record().scope;
}
tamrikon::Members& HostMember::Collection() const {
  return module_.Members();
}
int HostMember::CodeLocation() const {
  return record().logicalLine;
}

std::string HostMember::Description() const {
  return module_.attributes().description(owner());
}

void HostMember::setDescription(const std::string& text) {
  module_.attributes().setDescription(owner(), text);
}

int HostMember::HelpContextID() const {
  return module_.attributes().helpContextID(owner());
}

void HostMember::setHelpContextID(int id) {
  module_.attributes().setHelpContextID(owner(), id);
}

void HostMember::holdHelpContextID(int id) {
  module_.attributes().holdHelpContextID(owner(), id);
}

int HostMembers::Count() const {
  module_.analysis();
  return static_cast<int>(current_.size());
}

Member& HostMembers::Item(int number) const {
  if (number < 1 || number > Count()) throw IdeError("there is no member of that number");
  return *current_[static_cast<std::size_t>(number - 1)];
}

CodeModule& HostMembers::Parent() const {
  return module_;
}

void HostMembers::update(const ModuleAnalysis& analysis) {
  for (HostMember* member : current_) member->record_ = nullptr;
  current_.clear();
  current_.reserve(analysis.members().size());
  all_.reserve(analysis.members().size());
  for (const MemberRecord& record : analysis.members()) {
    HostMember& member = all_.try_emplace(record.name, module_, record.name).first->second;
    member.name_ = record.name;  // an edit may have changed its letter case
    member.record_ = &record;
    current_.push_back(&member);
  }
}

}  // namespace tamrikon
