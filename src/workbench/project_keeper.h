// Opens, saves and closes projects, and sees to it that nothing gets lost on the way.
#pragma once

#include <QObject>
#include <QStringList>
#include <memory>
#include <optional>
#include <vector>

#include "host/host_ide.h"
#include "platform/file_system.h"
#include "workbench/prompts.h"

namespace tamrikon {

/// The modules of all projects, of several over one source the first alone.
std::vector<HostModule*> modulesOf(const HostIde& ide);

class ProjectKeeper final : public QObject {
  Q_OBJECT
 public:
  /// Both must outlive the keeper.
  ProjectKeeper(Prompts& prompts, FileSystem& files) : prompts_(prompts), files_(files) {}

  /// What is open; null if nothing is.
  HostIde* ide() const { return ide_.get(); }

  /// The project or group that is open, as an absolute path.
  QString path() const { return path_; }

  /// Opens a project or group in place of the one that is open, whose unsaved changes are asked
  /// for. False if nothing was opened; the user knows why then, and the old one stays open.
  bool open(const QString& path);

  /// False if the user cancelled, or if something couldn't be saved.
  bool close();

  /// Asks before a file is overwritten that another program has changed or removed. A failure is
  /// told. Whether the file is saved.
  bool save(HostModule& module);
  bool saveAll();

  /// Whether the module is in need of being saved: it has changes, or its file is gone.
  bool isUnsaved(const HostModule& module) const;

 signals:
  void opened(HostIde& ide, const std::vector<Diagnostic>& faults);

  /// It goes at once: whoever shows a part of it must let go now.
  void closing(HostIde& ide);

  /// It has gone, and nothing is open.
  void closed();

  /// Files have been written.
  void saved();

  /// The module couldn't be written because of a character, as the user has been told.
  void saveFailed(HostModule& module, const Selection& character);

 private:
  struct Failures {
    QStringList messages;
    HostModule* module =
        nullptr;  // the first one that failed because of a character, and its place
    int line = 0;
    int column = 0;
  };

  bool letGo();
  bool saveOne(HostModule& module, Failures& failures);
  bool saveOne(HostProject& project, Failures& failures);
  template <typename Saved>
  std::optional<OnConflict> howToWrite(const Saved& saved, const std::string& path);
  void tellFailures(const Failures& failures);

  Prompts& prompts_;
  FileSystem& files_;
  std::unique_ptr<HostIde> ide_;
  QString path_;
};

}  // namespace tamrikon
