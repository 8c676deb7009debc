// Projects on disk behind the IDE surface.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "host/host_project.h"
#include "host/save_failure.h"
#include "host/unseen_screen.h"
#include "ide/ide.h"
#include "platform/code_page.h"
#include "platform/file_system.h"
#include "source/file_on_disk.h"
#include "source/source_store.h"

namespace tamrikon {

class HostProjects final : public VBProjects {
 public:
  int Count() const override { return static_cast<int>(projects_.size()); }
  HostProject& Item(int number) const override;

 private:
  friend class HostIde;
  std::vector<std::unique_ptr<HostProject>> projects_;
};

/// All objects that it hands out live as long as it does and keep their addresses: a member of a
/// name that an edit takes away and another one brings back is the same object. Nothing is written
/// to disk but by the operations that save.
class HostIde final : public VBE {
 public:
  /// Opens a project (.vbp) or a group (.vbg). `codePage`, if it isn't null, is taken instead of
  /// the one that is kept or found for each project. `warn` gets one line for each file that can't
  /// be read and is left out, and notes of the code page, which begin with "note: ". Null if there
  /// is nothing to open: `why` is then one line that names the file and what is wrong. `files` must
  /// outlive the result.
  static std::unique_ptr<HostIde> open(FileSystem& files, const std::string& path,
                                       const CodePage* codePage, const DiagnosticSink& warn,
                                       std::string& why);

  /// Tells the screen of each project that it goes.
  ~HostIde() override;

  VBProject& ActiveVBProject() const override { return *active_; }
  HostProjects& VBProjects() const override { return projects_; }
  CodePane* ActiveCodePane() const override { return screen_->activeCodePane(); }
  void setActiveCodePane(CodePane& pane) override;
  tamrikon::Windows& Windows() const override { return screen_->windows(); }
  Window* ActiveWindow() const override { return screen_->activeWindow(); }
  Window& MainWindow() const override { return screen_->mainWindow(); }
  tamrikon::CommandBars& CommandBars() const override { return screen_->commandBars(); }
  tamrikon::Events& Events() const override { return screen_->events(); }

  /// Shows everything on `screen` from now on; null: nobody sees it, as at first. The screen must
  /// outlive its use, and shows modules of this IDE alone.
  void setScreen(HostScreen* screen);

  bool isGroup() const { return isGroup_; }

  /// The project of a group that starts, at first the active one: the one that the group file says
  /// so of if it could be read, otherwise the first.
  VBProject& startupProject() const { return *startup_; }

  /// The project must be one of this IDE's.
  void activate(VBProject& project);
  const CodePage& codePageOf(const VBProject& project) const;

  /// Whether `path` names a project or a group by its extension.
  static bool isProjectFile(const std::string& path);

  /// From now on, help context IDs that nobody has asked to find in the source get there too: the
  /// holdHelpContextID() of members and components does as setHelpContextID() does. As long as this
  /// isn't called, they can be read, but change no file.
  void writeHeldHelpIds();

  bool hasUnsavedChanges() const;

  /// Saves each source and project file that has changed. The result is those that couldn't be
  /// saved; such a file is as it was on disk and counts as changed still. A file that
  /// changedOnDisk() is one of those, unless `onConflict` says otherwise, and so is a source that
  /// can't be understood.
  std::vector<SaveFailure> saveAll(OnConflict onConflict = OnConflict::fail);

  /// Save the source of one module, and the project's own file without its components, as saveAll()
  /// does. With OnConflict::overwrite, a file that changedOnDisk() is written
  /// even if there is nothing to save.
  std::optional<SaveFailure> save(HostModule& module, OnConflict onConflict = OnConflict::fail);
  std::optional<SaveFailure> saveProject(VBProject& project,
                                         OnConflict onConflict = OnConflict::fail);

  /// Of what was saved since this was asked last, a warning for each description whose end is lost.
  std::vector<Diagnostic> takeSaveWarnings();

  /// Whether the file, which is read for that, isn't what was read or saved last; also if it is
  /// gone.
  bool changedOnDisk(const HostModule& module) const;
  bool changedOnDisk(const VBProject& project) const;
  bool isGone(const HostModule& module) const;
  bool isGone(const VBProject& project) const;

  /// Reads the module's file again, whatever was edited in it, for all modules over it: they stay
  /// the same objects, their observers are told, and the history is cleared. A line if that fails;
  /// nothing has changed then.
  std::optional<std::string> reload(HostModule& module);

 private:
  explicit HostIde(FileSystem& files) : files_(files), sources_(files) {}

  class Opening;

  /// Fails for a project that isn't one of this IDE's.
  HostProject& own(const VBProject& project) const;

  FileSystem& files_;
  UnseenScreen unseen_;
  HostScreen* screen_ = &unseen_;
  SourceStore sources_;
  mutable HostProjects projects_;
  VBProject* active_ = nullptr;
  VBProject* startup_ = nullptr;
  bool isGroup_ = false;
};

}  // namespace tamrikon
