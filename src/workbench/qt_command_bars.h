// The menus and toolbars of the workbench as command bars.
#pragma once

#include <QAction>
#include <QPointer>
#include <QWidget>
#include <memory>
#include <string>
#include <vector>

#include "ide/command_bars.h"

namespace tamrikon {

class QtBar;

/// An item of a bar: one of the program's own, or one that an add-in put there. Deleted ones are
/// kept, without their action, as others may still hold them.
class QtControl final : public CommandBarControl {
 public:
  QtControl(QtBar& bar, QAction* action) : bar_(bar), action_(action) {}

  std::string Caption() const override;
  void setCaption(const std::string& caption) override;
  std::string ToolTipText() const override;
  void setToolTipText(const std::string& text) override;
  void PasteFace(const Face& face) override;
  void Delete() override;

  /// Null once it is deleted.
  QAction* action() const { return action_; }

 private:
  QAction& existing() const;

  QtBar& bar_;
  QPointer<QAction> action_;
};

/// Works on the actions of a menu, menu bar or toolbar; separators don't count as items.
class QtBar final : public CommandBar, public CommandBarControls {
 public:
  /// `widget` must outlive the bar.
  QtBar(std::string name, QWidget& widget) : name_(std::move(name)), widget_(widget) {}

  std::string Name() const override { return name_; }
  CommandBarControls& Controls() const override { return const_cast<QtBar&>(*this); }
  int Count() const override;
  CommandBarControl& Item(int number) const override;
  CommandBarControl& Add(ControlType type, int before = 0) override;

 private:
  friend class QtControl;

  std::vector<QAction*> items() const;
  QtControl& controlOf(QAction& action) const;

  std::string name_;
  QWidget& widget_;
  mutable std::vector<std::unique_ptr<QtControl>> controls_;  // deleted ones among them
};

class QtCommandBars final : public CommandBars {
 public:
  /// The bars are numbered in the order in which they are added.
  void add(std::string name, QWidget& widget);

  CommandBar* Item(const std::string& name) const override;
  CommandBar* Item(int number) const override;

 private:
  std::vector<std::unique_ptr<QtBar>> bars_;
};

}  // namespace tamrikon
