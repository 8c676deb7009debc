// A component of a project, as the IDE surface shows it.
#pragma once

#include <memory>
#include <string>

#include "host/host_module.h"
#include "ide/ide.h"
#include "source/source_store.h"
#include "vb/conditional_expression.h"

namespace tamrikon {

class HostProject;

/// Where a component is kept.
struct ComponentFile {
  std::string path;        // absolute; of a missing file, the one at which it was looked for first
  bool isMissing = false;  // wasn't there or couldn't be read when the project was opened
  Source* source = nullptr;  // decoded; null for a component without code and for a missing one
};

class HostComponent final : public VBComponent {
 public:
  /// `name` is the module's, unless its source has one. The project, the source and the constants
  /// must outlive the component.
  HostComponent(HostProject& project, ComponentType type, const std::string& name,
                ComponentFile file, const ConditionalConstants& constants);

  ComponentType Type() const override;
  HostModule* CodeModule() const override { return module_.get(); }
  std::string Description() const override;
  int HelpContextID() const override;

  /// All fail for a component without code.
  void setDescription(const std::string& text) override;
  void setHelpContextID(int id) override;
  void holdHelpContextID(int id) override;

  HostProject& project() const { return project_; }

  /// The module's name, also if its file is missing; of a component that has no code by its kind,
  /// the file's.
  std::string name() const;
  const std::string& path() const { return file_.path; }
  bool isMissing() const { return file_.isMissing; }

 private:
  MemberAttributes& writableAttributes() const;

  HostProject& project_;
  ComponentType type_;
  std::string nameInProject_;
  ComponentFile file_;
  std::unique_ptr<HostModule> module_;
};

}  // namespace tamrikon
