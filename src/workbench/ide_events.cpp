#include "workbench/ide_events.h"

#include <QAction>

#include "ide/ide.h"
#include "workbench/qt_command_bars.h"

namespace tamrikon {
namespace {

class ClickSource final : public CommandBarEvents {
 public:
  explicit ClickSource(const QtControl& control) {
    if (control.action() == nullptr) return;  // deleted
    connection_ = QObject::connect(control.action(), &QAction::triggered, [this] {
      const std::function<void()> handler = Click;  // which may drop this source
      if (handler) handler();
    });
  }
  ~ClickSource() override { QObject::disconnect(connection_); }

 private:
  QMetaObject::Connection connection_;
};

}  // namespace

std::unique_ptr<tamrikon::CommandBarEvents> IdeEvents::CommandBarEvents(
    CommandBarControl* control) {
  const auto* own = dynamic_cast<QtControl*>(control);
  if (own == nullptr) throw IdeError("events are wanted of an item that isn't there");
  return std::make_unique<ClickSource>(*own);
}

}  // namespace tamrikon
