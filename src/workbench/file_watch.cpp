#include "workbench/file_watch.h"

#include <QFileInfo>
#include <QSet>
#include <chrono>

namespace tamrikon {
namespace {

using namespace std::chrono_literals;
constexpr auto kPause = 200ms;

}  // namespace

FileWatch::FileWatch(QObject* parent) : QObject(parent) {
  pause_.setSingleShot(true);
  pause_.setInterval(kPause);
  const auto wait = [this] { pause_.start(); };
  connect(&watcher_, &QFileSystemWatcher::fileChanged, this, wait);
  connect(&watcher_, &QFileSystemWatcher::directoryChanged, this, wait);
  connect(&pause_, &QTimer::timeout, this, [this] {
    addMissing();
    emit changed();
  });
}

void FileWatch::watch(const QStringList& paths) {
  const QStringList old = watcher_.files() + watcher_.directories();
  if (!old.isEmpty()) watcher_.removePaths(old);
  pause_.stop();
  paths_ = paths;
  addMissing();
}

/// A file that was replaced isn't watched any more. Its folder tells when it comes back.
void FileWatch::addMissing() {
  const QStringList files = watcher_.files();
  const QStringList folders = watcher_.directories();
  QSet<QString> watched(files.begin(), files.end());
  watched.unite({folders.begin(), folders.end()});
  QStringList missing;
  for (const QString& path : paths_) {
    const QFileInfo file(path);
    for (const QString& wanted : {path, file.path()}) {
      if (watched.contains(wanted) || !QFileInfo::exists(wanted)) continue;
      watched.insert(wanted);
      missing += wanted;
    }
  }
  if (!missing.isEmpty()) watcher_.addPaths(missing);
}

}  // namespace tamrikon
