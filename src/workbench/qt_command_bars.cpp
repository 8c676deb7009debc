#include "workbench/qt_command_bars.h"

#include <QIcon>
#include <QImage>
#include <QMenu>
#include <QPixmap>
#include <algorithm>

#include "ide/ide.h"
#include "toolkit_qt/qt_text.h"

namespace tamrikon {
namespace {

/// Without the pixels it would need, there is no picture.
QIcon iconOf(const Face& face) {
  const auto needed = static_cast<std::size_t>(std::max(face.width, 0)) *
                      static_cast<std::size_t>(std::max(face.height, 0));
  if (needed == 0 || face.pixels.size() < needed) return {};
  QImage image(face.width, face.height, QImage::Format_ARGB32);
  for (int y = 0; y < face.height; ++y) {
    const auto row = face.pixels.begin() + static_cast<std::ptrdiff_t>(y) * face.width;
    std::copy(row, row + face.width, reinterpret_cast<QRgb*>(image.scanLine(y)));
  }
  QIcon icon;
  // Whole multiples keep their sharp edges on screens of high resolution.
  for (int factor = 1; factor <= 4; ++factor) {
    icon.addPixmap(QPixmap::fromImage(image.scaled(image.size() * factor)));
  }
  return icon;
}

}  // namespace

QAction& QtControl::existing() const {
  if (action_ == nullptr) throw IdeError("the item has been deleted");
  return *action_;
}

std::string QtControl::Caption() const {
  return fromQt(existing().text());
}

void QtControl::setCaption(const std::string& caption) {
  existing().setText(toQt(caption));
}

std::string QtControl::ToolTipText() const {
  return fromQt(existing().toolTip());
}

void QtControl::setToolTipText(const std::string& text) {
  existing().setToolTip(toQt(text));
}

void QtControl::PasteFace(const Face& face) {
  existing().setIcon(iconOf(face));
}

void QtControl::Delete() {
  QAction& action = existing();
  bar_.widget_.removeAction(&action);
  action_ = nullptr;
  // It may be the very action that is being triggered; the program's own ones live on elsewhere.
  if (action.parent() == &bar_.widget_ && action.menu() == nullptr) action.deleteLater();
}

std::vector<QAction*> QtBar::items() const {
  std::vector<QAction*> items;
  for (QAction* action : widget_.actions()) {
    if (!action->isSeparator()) items.push_back(action);
  }
  return items;
}

QtControl& QtBar::controlOf(QAction& action) const {
  for (const auto& control : controls_) {
    if (control->action() == &action) return *control;
  }
  auto& self = const_cast<QtBar&>(*this);
  controls_.push_back(std::make_unique<QtControl>(self, &action));
  return *controls_.back();
}

int QtBar::Count() const {
  return static_cast<int>(items().size());
}

CommandBarControl& QtBar::Item(int number) const {
  if (number < 1 || number > Count()) throw IdeError("there is no item of that number");
  return controlOf(*items()[static_cast<std::size_t>(number - 1)]);
}

CommandBarControl& QtBar::Add(ControlType, int before) {
  if (before < 0 || before > Count()) throw IdeError("there is no item of that number");
  QAction* next = before == 0 ? nullptr : items()[static_cast<std::size_t>(before - 1)];
  auto* action = new QAction(&widget_);
  widget_.insertAction(next, action);
  return controlOf(*action);
}

void QtCommandBars::add(std::string name, QWidget& widget) {
  bars_.push_back(std::make_unique<QtBar>(std::move(name), widget));
}

CommandBar* QtCommandBars::Item(const std::string& name) const {
  for (const auto& bar : bars_) {
    if (bar->Name() == name) return bar.get();
  }
  return nullptr;
}

CommandBar* QtCommandBars::Item(int number) const {
  if (number < 1 || number > static_cast<int>(bars_.size())) return nullptr;
  return bars_[static_cast<std::size_t>(number - 1)].get();
}

}  // namespace tamrikon
