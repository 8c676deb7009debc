#include "host/host_component.h"

#include "base/case_folding.h"
#include "host/names.h"

namespace tamrikon {

HostComponent::HostComponent(HostProject& project, ComponentType type, const std::string& name,
                             Source* source, const ConditionalConstants& constants)
    : project_(project), type_(type) {
  if (source == nullptr) return;
  if (type == ComponentType::form && equalIgnoringCase(source->file().blockClass(), "VB.MDIForm")) {
    type_ = ComponentType::mdiForm;
  }
  const std::string ownName = source->attributes().moduleName();
  module_ = std::make_unique<HostModule>(
      *this, *source, identifierFrom(ownName.empty() ? name : ownName), constants);
}

std::string HostComponent::Description() const {
  return module_ ? module_->attributes().description({}) : std::string();
}

int HostComponent::HelpContextID() const {
  return module_ ? module_->attributes().helpContextID({}) : 0;
}

void HostComponent::setDescription(const std::string& text) {
  writableAttributes().setDescription({}, text);
}

void HostComponent::setHelpContextID(int id) {
  writableAttributes().setHelpContextID({}, id);
}

MemberAttributes& HostComponent::writableAttributes() const {
  if (!module_) throw IdeError("the component has no code");
  return module_->attributes();
}

}  // namespace tamrikon
