#include "workbench/recent_menu.h"

#include <QFileInfo>

namespace tamrikon {

RecentMenu::RecentMenu(QMenu& menu, RecentFiles& files, Prompts& prompts)
    : menu_(menu), files_(files), prompts_(prompts) {
  connect(&menu_, &QMenu::aboutToShow, this, &RecentMenu::fill);
}

void RecentMenu::fill() {
  menu_.clear();
  int number = 0;
  for (const QString& path : files_.paths()) {
    const QString caption = QString("&%1 ").arg(++number % 10) + QString(path).replace('&', "&&");
    menu_.addAction(caption, this, [this, path] { choose(path); });
  }
  if (number == 0) menu_.addAction("(none)")->setEnabled(false);
}

void RecentMenu::choose(const QString& path) {
  if (QFileInfo::exists(path)) return emit openWanted(path);
  files_.remove(path);
  prompts_.ask(
      {"This project isn't there any more. It has been taken off the list.", path, {"OK"}});
}

}  // namespace tamrikon
