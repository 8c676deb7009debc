// A project on disk, as the IDE surface shows it.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/diagnostic.h"
#include "host/host_component.h"
#include "host/host_screen.h"
#include "host/project_file.h"
#include "ide/ide.h"
#include "platform/code_page.h"
#include "source/code_page_guess.h"
#include "source/file_on_disk.h"
#include "source/path_lookup.h"
#include "source/source_store.h"
#include "vb/conditional_expression.h"

namespace tamrikon {

/// That a file can't be read; `why` follows its path.
Diagnostic unreadableFile(const std::string& path, std::string_view why = {});

class HostComponents final : public VBComponents {
 public:
  int Count() const override { return static_cast<int>(components_.size()); }
  HostComponent& Item(int number) const override;
  void add(std::unique_ptr<HostComponent> component);

 private:
  std::vector<std::unique_ptr<HostComponent>> components_;
};

/// What all projects of one opening share.
struct ProjectContext {
  PathLookup& lookup;
  SourceStore& sources;
  const CodePage* codePage;  // the one that was asked for or kept, or null
  const DiagnosticSink& warn;
  HostScreen* const& screen;  // follows a change of the screen
};

class HostProject final : public VBProject {
 public:
  /// `fileName` is the absolute path of the project's file and `bytes` what it holds. Finds and
  /// reads the files of the components. `context.sources` and `context.screen` must outlive the
  /// project.
  HostProject(std::string fileName, std::string bytes, const ProjectContext& context);

  /// What its files tell of the code page. Only until it is opened.
  const CodePageGuess& guess() const { return found_->guess; }

  /// Reads the sources in `page` that no other project has read before. Only until it is opened.
  void decodeSources(const CodePage& page);

  /// Opens all components, whose sources have been decoded; to be called once, before what follows.
  void open(const CodePage& page, const DiagnosticSink& warn);

  std::string Name() const override { return name_; }
  std::string FileName() const override { return disk_.path(); }
  std::string HelpFile() const override { return file_.helpFile(); }
  void setHelpFile(const std::string& path) override { file_.setHelpFile(path); }
  HostComponents& VBComponents() const override { return components_; }

  /// Whether the project's own file differs from what was read or saved last.
  bool isChanged() const { return file_.isChanged(); }

  const CodePage& codePage() const { return *page_; }
  HostScreen& screen() const { return *screen_; }
  ProjectFile& file() { return file_; }
  FileOnDisk& disk() { return disk_; }

 private:
  struct FoundComponent {
    std::string path;  // empty if there is no such file
    Source* source = nullptr;
  };
  struct Found {
    std::vector<FoundComponent> components;  // beside those of file_
    CodePageGuess guess;
  };

  HostScreen* const& screen_;
  FileOnDisk disk_;
  ProjectFile file_;
  std::optional<Found> found_;  // until the project is opened
  const CodePage* page_ = nullptr;
  std::string name_;
  ConditionalConstants constants_;
  mutable HostComponents components_;
};

}  // namespace tamrikon
