// Watches files for changes by other programs.
#pragma once

#include <QFileSystemWatcher>
#include <QObject>
#include <QStringList>
#include <QTimer>

namespace tamrikon {

class FileWatch final : public QObject {
  Q_OBJECT
 public:
  explicit FileWatch(QObject* parent = nullptr);

  /// Watches these files from now on, and no others. They needn't be there.
  void watch(const QStringList& paths);

 signals:
  /// Something may have happened to a file. Changes that come together are told once.
  void changed();

 private:
  void addMissing();

  QStringList paths_;
  QFileSystemWatcher watcher_;
  QTimer pause_;
};

}  // namespace tamrikon
