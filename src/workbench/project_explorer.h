// The tree of the projects that are open and of what they consist of.
#pragma once

#include <QTreeWidget>

#include "host/host_ide.h"

namespace tamrikon {

class ProjectExplorer final : public QTreeWidget {
  Q_OBJECT
 public:
  explicit ProjectExplorer(QWidget* parent = nullptr);

  /// Shows the projects of an IDE, which must outlive its being shown; null shows nothing.
  void show(HostIde* ide);

  /// Another project has become the active one.
  void markActive();

  /// Shows the components' names as they are now.
  void refresh();

  /// Selects what a code window shows.
  void select(const HostModule& module);

  /// As if the user had pressed Enter on what is selected.
  void openSelected();

 signals:
  void codeWanted(HostModule& module);

  /// The user wants to see a file that isn't code.
  void documentWanted(const QString& path);
  void activationWanted(HostProject& project);

 private:
  void addProject(HostProject& project);
  void openItem(const QTreeWidgetItem* item);
  void changeEvent(QEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

  HostIde* ide_ = nullptr;
};

}  // namespace tamrikon
