// A component of a project, as the IDE surface shows it.
#pragma once

#include <memory>
#include <string>

#include "host/conditional_expression.h"
#include "host/host_module.h"
#include "host/source_store.h"
#include "ide/ide.h"

namespace tamrikon {

class HostProject;

class HostComponent final : public VBComponent {
 public:
  /// `source` is decoded, or null if the component has no code; `name` is the module's, unless its
  /// source has one. Everything else must outlive the component.
  HostComponent(HostProject& project, ComponentType type, const std::string& name, Source* source,
                const ConditionalConstants& constants);

  ComponentType Type() const override { return type_; }
  tamrikon::CodeModule* CodeModule() const override { return module_.get(); }
  std::string Description() const override;
  int HelpContextID() const override;

  /// Both fail for a component without code.
  void setDescription(const std::string& text) override;
  void setHelpContextID(int id) override;

  HostProject& project() const { return project_; }

 private:
  MemberAttributes& writableAttributes() const;

  HostProject& project_;
  ComponentType type_;
  std::unique_ptr<HostModule> module_;
};

}  // namespace tamrikon
