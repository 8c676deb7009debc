#include "workbench/workbench_ide.h"

namespace tamrikon {
namespace {

class NoProjects final : public VBProjects {
 public:
  int Count() const override { return 0; }
  VBProject& Item(int) const override { throw IdeError("there is no project of that number"); }
};

}  // namespace

WorkbenchIde::WorkbenchIde(const ProjectKeeper& keeper, WorkbenchScreen& screen)
    : keeper_(keeper), screen_(screen), none_(std::make_unique<NoProjects>()) {}

WorkbenchIde::~WorkbenchIde() = default;

HostIde& WorkbenchIde::opened() const {
  if (keeper_.ide() == nullptr) throw IdeError("no project is open");
  return *keeper_.ide();
}

VBProjects& WorkbenchIde::VBProjects() const {
  if (keeper_.ide() == nullptr) return *none_;
  return keeper_.ide()->VBProjects();
}

}  // namespace tamrikon
