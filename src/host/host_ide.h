// Projects on disk behind the IDE surface.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "host/host_project.h"
#include "host/source_store.h"
#include "host/unseen_screen.h"
#include "ide/ide.h"
#include "platform/code_page.h"
#include "platform/file_system.h"

namespace tamrikon {

class HostProjects final : public VBProjects {
 public:
  int Count() const override { return static_cast<int>(projects_.size()); }
  VBProject& Item(int number) const override;

 private:
  friend class HostIde;
  std::vector<std::unique_ptr<HostProject>> projects_;
};

/// All objects that it hands out live as long as it does and keep their addresses: a member of a
/// name that an edit takes away and another one brings back is the same object. Nothing is written
/// to disk but by saveAll().
class HostIde final : public VBE {
 public:
  /// Opens a project (.vbp) or a group (.vbg). `codePage`, if it isn't null, is taken instead of
  /// the one that is found for each project. `warn` gets one line for each file that can't be read
  /// and is left out. Null if there is nothing to open: `why` is then one line that names the file
  /// and what is wrong. `files` must outlive the result.
  static std::unique_ptr<HostIde> open(FileSystem& files, const std::string& path,
                                       const CodePage* codePage, const WarningSink& warn,
                                       std::string& why);

  VBProject& ActiveVBProject() const override { return *active_; }
  tamrikon::VBProjects& VBProjects() const override { return projects_; }
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

  /// Saves each source and project file that has changed. The result is a line for each one that
  /// couldn't be saved; such a file is as it was on disk and counts as changed still.
  std::vector<std::string> saveAll();

 private:
  explicit HostIde(FileSystem& files) : files_(files), sources_(files) {}

  HostProject* addProject(std::string fileName, std::string bytes, PathLookup& lookup,
                          const CodePage* codePage, const WarningSink& warn);
  void openGroup(const std::string& path, std::string_view bytes, const CodePage* codePage,
                 const WarningSink& warn);

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
