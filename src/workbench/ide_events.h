// The sources of events that the workbench hands out.
#pragma once

#include <memory>

#include "host/project_event_sources.h"
#include "ide/events.h"

namespace tamrikon {

class IdeEvents final : public Events {
 public:
  /// Fails also on a control that isn't the workbench's. The source may outlive the control, of
  /// which it hears nothing more then.
  std::unique_ptr<tamrikon::CommandBarEvents> CommandBarEvents(CommandBarControl* control) override;
  std::unique_ptr<tamrikon::VBProjectsEvents> VBProjectsEvents() override {
    return projects_.make();
  }

  ProjectEventSources& projects() { return projects_; }

 private:
  ProjectEventSources projects_;
};

}  // namespace tamrikon
