// The menu of the projects that were opened last.
#pragma once

#include <QMenu>

#include "workbench/prompts.h"
#include "workbench/recent_files.h"

namespace tamrikon {

class RecentMenu final : public QObject {
  Q_OBJECT
 public:
  /// Fills the menu each time it is shown. All must outlive this object.
  RecentMenu(QMenu& menu, RecentFiles& files, Prompts& prompts);

 signals:
  void openWanted(const QString& path);

 private:
  void fill();

  /// A file that isn't there any more is taken off the list.
  void choose(const QString& path);

  QMenu& menu_;
  RecentFiles& files_;
  Prompts& prompts_;
};

}  // namespace tamrikon
