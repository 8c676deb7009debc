#include "host/host_component.h"

#include <utility>

#include "base/case_folding.h"
#include "base/paths.h"
#include "vb/names.h"

namespace tamrikon {

HostComponent::HostComponent(HostProject& project, ComponentType type, const std::string& name,
                             ComponentFile file, const ConditionalConstants& constants)
    : project_(project),
      type_(type),
      nameInProject_(hasCode(type) ? identifierFrom(name) : lastName(file.path)),
      file_(std::move(file)) {
  if (file_.source == nullptr) return;
  module_ = std::make_unique<HostModule>(*this, *file_.source, nameInProject_, constants);
}

ComponentType HostComponent::Type() const {
  const bool isMdi = type_ == ComponentType::form && file_.source != nullptr &&
                     equalIgnoringCase(file_.source->file().blockClass(), "VB.MDIForm");
  return isMdi ? ComponentType::mdiForm : type_;
}

std::string HostComponent::name() const {
  return module_ ? module_->Name() : nameInProject_;
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

void HostComponent::holdHelpContextID(int id) {
  writableAttributes().holdHelpContextID({}, id);
}

MemberAttributes& HostComponent::writableAttributes() const {
  if (!module_) throw IdeError("the component has no code");
  return module_->attributes();
}

}  // namespace tamrikon
