// Notices when other programs change the files of the open project, and asks what to do.
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QHash>
#include <QObject>
#include <vector>

#include "workbench/file_watch.h"
#include "workbench/project_keeper.h"

namespace tamrikon {

class DiskChanges final : public QObject {
  Q_OBJECT
 public:
  /// Both must outlive this object. It looks by itself when a file changes.
  DiskChanges(ProjectKeeper& keeper, Prompts& prompts);

  /// Looks at all files, and asks about each change once.
  void check();

 signals:
  /// The user wants the project to be read again.
  void reopenWanted();

  /// Modules have been read again.
  void reloaded();

 private:
  /// By which a file that wasn't written is known without reading it.
  struct Stamp {
    QDateTime written;
    qint64 size = -1;
    bool operator==(const Stamp&) const = default;
  };

  /// What other programs have done that the user wasn't asked about yet.
  struct News {
    QStringList projects;
    QStringList gone;
    std::vector<HostModule*> unedited;
    std::vector<HostModule*> edited;
  };

  void follow(const HostIde& ide);
  News look();
  bool wasTouched(const QString& path);
  bool isNews(const QString& path, bool isChanged);
  void askToReload(const std::vector<HostModule*>& modules);
  void askWhichToKeep(HostModule& module);
  void reload(const std::vector<HostModule*>& modules);

  ProjectKeeper& keeper_;
  Prompts& prompts_;
  FileWatch watch_;
  QHash<QString, Stamp> seen_;       // at the last look
  QHash<QString, QByteArray> told_;  // the content that the user was asked about last
  QByteArray group_;                 // the content of the group's file when it was opened
  bool isChecking_ = false;
};

}  // namespace tamrikon
