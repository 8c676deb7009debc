// Hands out sources of project events and sends events to those that are still held.
#pragma once

#include <memory>
#include <vector>

#include "ide/events.h"

namespace tamrikon {

/// May go before its sources: they hear nothing more then.
class ProjectEventSources {
 public:
  ProjectEventSources();
  ~ProjectEventSources();

  std::unique_ptr<VBProjectsEvents> make();

  /// A handler may drop its own source, and others, and make new ones.
  void projectAdded(VBProject& project);
  void projectActivated(VBProject& project);
  void projectRemoved(VBProject& project);

 private:
  class Source;
  using Sources = std::vector<Source*>;
  using Handler = std::function<void(VBProject&)> VBProjectsEvents::*;

  void send(Handler handler, VBProject& project);

  std::shared_ptr<Sources> sources_;
};

}  // namespace tamrikon
