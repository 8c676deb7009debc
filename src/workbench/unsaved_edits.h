// Keeps what isn't saved yet where a later start finds it, should this one end badly.
#pragma once

#include <QHash>
#include <QLockFile>
#include <QObject>
#include <QSet>
#include <QTimer>
#include <memory>
#include <vector>

#include "workbench/project_keeper.h"

namespace tamrikon {

/// For each source of the open project with unsaved changes there is a file with its visible lines,
/// in a folder that belongs to this run alone. It is written soon after an edit, goes when the
/// changes are saved or given up, and stays if the program is killed.
class UnsavedEdits final : public QObject {
  Q_OBJECT
 public:
  /// Both must outlive this object. Each run makes a folder of its own in `folder` when it needs
  /// one. An empty path keeps nothing.
  UnsavedEdits(ProjectKeeper& keeper, Prompts& prompts, QString folder);
  ~UnsavedEdits() override;

  /// Asks the user about each source of the open project of which a run that has ended left unsaved
  /// edits. Those of programs that still run are left alone.
  void offer();

 signals:
  /// Lines from `first` on are edited again.
  void restored(HostModule& module, int first);

 private:
  class Watch;

  /// What a file holds.
  struct Kept {
    QString path;      // of the source
    QByteArray saved;  // the content of the source that was edited
    QStringList lines;
  };

  void follow(const HostIde& ide);
  void letGo();
  void note(HostModule& module);
  void writeAll();
  bool write(HostModule& module);
  bool hasFolder();
  void offerFrom(const QString& folder);

  /// Whether the file isn't needed any longer.
  bool offerFile(const QString& file, HostModule& module);
  static std::optional<Kept> read(const QString& file);

  ProjectKeeper& keeper_;
  Prompts& prompts_;
  const QString folder_;
  QString own_;  // the folder of this run, or empty
  std::unique_ptr<QLockFile> lock_;
  std::vector<std::unique_ptr<Watch>> watches_;
  QSet<HostModule*> edited_;              // since the files were written
  QHash<HostModule*, QByteArray> saved_;  // the content of the sources that are being edited
  QTimer writeSoon_;
};

}  // namespace tamrikon
