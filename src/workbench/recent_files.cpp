#include "workbench/recent_files.h"

namespace tamrikon {
namespace {

constexpr auto kKey = "RecentProjects";

}  // namespace

QStringList RecentFiles::paths() const {
  return settings_.value(kKey).toStringList().mid(0, kMost);
}

void RecentFiles::add(const QString& path) {
  QStringList paths = this->paths();
  paths.removeAll(path);
  paths.prepend(path);
  settings_.setValue(kKey, QStringList(paths.mid(0, kMost)));
}

void RecentFiles::remove(const QString& path) {
  QStringList paths = this->paths();
  paths.removeAll(path);
  settings_.setValue(kKey, paths);
}

}  // namespace tamrikon
