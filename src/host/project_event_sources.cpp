#include "host/project_event_sources.h"

#include <algorithm>
#include <utility>

namespace tamrikon {

class ProjectEventSources::Source final : public VBProjectsEvents {
 public:
  explicit Source(std::shared_ptr<Sources> sources) : sources_(std::move(sources)) {
    sources_->push_back(this);
  }
  ~Source() override {
    sources_->erase(std::remove(sources_->begin(), sources_->end(), this), sources_->end());
  }

 private:
  std::shared_ptr<Sources> sources_;
};

ProjectEventSources::ProjectEventSources() : sources_(std::make_shared<Sources>()) {}

ProjectEventSources::~ProjectEventSources() = default;

std::unique_ptr<VBProjectsEvents> ProjectEventSources::make() {
  return std::make_unique<Source>(sources_);
}

void ProjectEventSources::projectAdded(VBProject& project) {
  send(&VBProjectsEvents::ItemAdded, project);
}

void ProjectEventSources::projectActivated(VBProject& project) {
  send(&VBProjectsEvents::ItemActivated, project);
}

void ProjectEventSources::projectRemoved(VBProject& project) {
  send(&VBProjectsEvents::ItemRemoved, project);
}

void ProjectEventSources::send(Handler handler, VBProject& project) {
  const std::shared_ptr<Sources> sources = sources_;
  const Sources held = *sources;
  for (Source* source : held) {
    if (std::find(sources->begin(), sources->end(), source) == sources->end()) continue;
    // A copy, since the handler may drop the source that holds it.
    const auto call = source->*handler;
    if (call) call(project);
  }
}

}  // namespace tamrikon
