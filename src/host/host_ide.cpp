#include "host/host_ide.h"

#include <algorithm>
#include <cstdio>
#include <set>
#include <string_view>
#include <utility>

#include "base/case_folding.h"
#include "base/paths.h"
#include "base/utf8.h"
#include "host/group_file.h"
#include "host/kept_code_page.h"
#include "host/project_pages.h"
#include "source/code_page_guess.h"
#include "vb/attribute_text.h"

namespace tamrikon {
namespace {

constexpr int kGroupCodePage = 1252;

constexpr const char* kNoProject = " isn't a Visual Basic project: it has no line \"Type=\"";
constexpr const char* kNoGroup =
    " isn't a Visual Basic project group: its first line isn't \"VBGROUP 5.0\"";

/// A path with a backslash keeps its style where it is absolute already.
std::string absolutePath(FileSystem& files, const std::string& path) {
  const bool hasOwnStyle = path.find('\\') != std::string::npos && isAbsolutePath(path);
  return hasOwnStyle ? path : files.absolute(path);
}

std::string lackingMessage(const CodePage& page, const LackingCharacter& lacking) {
  std::string place = ", line " + std::to_string(lacking.line);
  if (lacking.line == 0) {
    place = ", in an attribute of the module";
  } else if (lacking.column == 0) {
    place += ", in an attribute behind it";
  } else {
    place += ", column " + std::to_string(lacking.column);
  }
  char codePoint[16];
  std::snprintf(codePoint, sizeof codePoint, "U+%04X", static_cast<unsigned>(lacking.codePoint));
  std::string character;
  appendCodePoint(character, lacking.codePoint);
  return place + ": code page " + std::to_string(page.number()) + " lacks '" + character + "' (" +
         codePoint + ")";
}

/// Why a file that was edited had better not be written; empty if it may.
std::string faultOf(const SourceFile& file) {
  return file.fault();
}
std::string faultOf(const ProjectFile&) {
  return {};
}

/// Saves `file`, a source or project file, if it has changed, or if the one on disk has and that
/// shall not stand; a message if that fails.
template <typename File>
std::optional<SaveFailure> saveFile(FileSystem& files, FileOnDisk& disk, File& file,
                                    const CodePage& page, OnConflict onConflict) {
  const bool isNeeded =
      file.isChanged() || (onConflict == OnConflict::overwrite && disk.isChanged(files));
  if (!isNeeded) return std::nullopt;
  const std::string start = "cannot save " + disk.path();
  const std::string fault = file.isChanged() ? faultOf(file) : std::string();
  if (!fault.empty()) return SaveFailure{start + ", " + fault, disk.path()};
  LackingCharacter lacking;
  const std::optional<std::string> bytes = file.bytes(lacking);
  if (!bytes) {
    return SaveFailure{start + lackingMessage(page, lacking), disk.path(), lacking.line,
                       lacking.column};
  }
  const std::optional<std::string> failure = disk.save(files, *bytes, onConflict);
  if (failure) return SaveFailure{*failure, disk.path()};
  file.setSaved();
  return std::nullopt;
}

}  // namespace

HostProject& HostProjects::Item(int number) const {
  if (number < 1 || number > Count()) throw IdeError("there is no project of that number");
  return *projects_[static_cast<std::size_t>(number - 1)];
}

/// Finds all projects first, since in a group one project can tell the code page of another.
class HostIde::Opening {
 public:
  Opening(HostIde& ide, const CodePage* codePage, const DiagnosticSink& warn)
      : ide_(ide), lookup_(ide.files_), codePage_(codePage), warn_(warn) {}

  HostProject* addProject(std::string fileName, std::string bytes) {
    const CodePage* page =
        codePage_ != nullptr ? codePage_ : readKeptCodePage(ide_.files_, fileName, warn_);
    const ProjectContext context{lookup_, ide_.sources_, page, warn_, ide_.screen_};
    auto& projects = ide_.projects_.projects_;
    projects.push_back(
        std::make_unique<HostProject>(std::move(fileName), std::move(bytes), context));
    pages_.add(page, projects.back()->guess());
    return projects.back().get();
  }

  void addGroup(const std::string& path, std::string_view bytes) {
    const std::string folder(folderOf(path));
    const int number = isValidUtf8(bytes) ? kUtf8CodePage : kGroupCodePage;
    const CodePage* page = CodePage::find(number);
    if (number != kUtf8CodePage && codePage_ != nullptr) page = codePage_;
    std::set<std::string> opened;
    for (const GroupLine& line : readGroupFile(bytes)) {
      const FoundPath found = findInCodePages(lookup_, folder, line.path, codePage_);
      if (opened.count(found.path) != 0) continue;  // the IDE can't hold a project twice either
      std::string projectBytes;
      if (found.path.empty() || ide_.files_.read(found.path, projectBytes) != FileError::none) {
        warn_(unreadableFile(PathLookup::tried(folder, page->decode(line.path))));
        continue;
      }
      if (!ProjectFile::isProject(projectBytes)) {
        warn_(unreadableFile(found.path, std::string(": the file") + kNoProject));
        continue;
      }
      opened.insert(found.path);
      HostProject* project = addProject(found.path, std::move(projectBytes));
      if (line.isStartup && ide_.startup_ == nullptr) ide_.startup_ = project;
    }
  }

  void openProjects() {
    const auto& projects = ide_.projects_.projects_;
    // A source that several projects share is read in the page that is known best.
    for (const std::size_t i : pages_.surestFirst()) projects[i]->decodeSources(pages_.of(i));
    for (std::size_t i = 0; i < projects.size(); ++i) projects[i]->open(pages_.of(i), warn_);
    const auto nameOf = [&](std::size_t i) { return projects[i]->Name(); };
    for (const Diagnostic& note : pages_.notes(nameOf)) warn_(note);
  }

 private:
  HostIde& ide_;
  PathLookup lookup_;
  const CodePage* codePage_;
  const DiagnosticSink& warn_;
  ProjectPages pages_;
};

std::unique_ptr<HostIde> HostIde::open(FileSystem& files, const std::string& path,
                                       const CodePage* codePage, const DiagnosticSink& warn,
                                       std::string& why) {
  std::string bytes;
  const FileError error = files.read(path, bytes);
  if (error != FileError::none) {
    why = "cannot read " + path + ": " + reasonOf(error);
    return nullptr;
  }
  std::unique_ptr<HostIde> ide(new HostIde(files));
  ide->isGroup_ = isGroupFile(path, bytes);
  const bool isKnown = ide->isGroup_ ? beginsAsGroup(bytes) : ProjectFile::isProject(bytes);
  if (!isKnown) {
    why = ide->isGroup_ ? path + kNoGroup : path + kNoProject;
    return nullptr;
  }
  std::set<std::string> told;
  const DiagnosticSink warnOnce = [&](const Diagnostic& fault) {
    if (told.insert(lineOf(fault)).second) warn(fault);
  };
  Opening opening(*ide, codePage, warnOnce);
  if (ide->isGroup_) {
    opening.addGroup(absolutePath(files, path), bytes);
    if (ide->projects_.Count() == 0) {
      why = "cannot read " + path + ": it has no project that can be read";
      return nullptr;
    }
  } else {
    opening.addProject(absolutePath(files, path), std::move(bytes));
  }
  opening.openProjects();
  if (ide->startup_ == nullptr) ide->startup_ = &ide->projects_.Item(1);
  ide->active_ = ide->startup_;
  return ide;
}

HostIde::~HostIde() {
  for (const auto& project : projects_.projects_) screen_->projectRemoved(*project);
}

void HostIde::setScreen(HostScreen* screen) {
  screen_ = screen == nullptr ? &unseen_ : screen;
}

void HostIde::setActiveCodePane(CodePane& pane) {
  screen_->setActiveCodePane(pane);
  activate(static_cast<const HostModule&>(pane.CodeModule()).component().project());
}

void HostIde::activate(VBProject& project) {
  if (active_ == &project) return;
  active_ = &project;
  screen_->projectActivated(project);
}

HostProject& HostIde::own(const VBProject& project) const {
  for (const auto& own : projects_.projects_) {
    if (own.get() == &project) return *own;
  }
  throw IdeError("the project is not one of this IDE's");
}

const CodePage& HostIde::codePageOf(const VBProject& project) const {
  return own(project).codePage();
}

bool HostIde::isProjectFile(const std::string& path) {
  if (!hasExtension(path)) return false;
  const std::string_view extension = std::string_view(path).substr(path.rfind('.'));
  return equalIgnoringCase(extension, ".vbp") || equalIgnoringCase(extension, ".vbg");
}

void HostIde::writeHeldHelpIds() {
  for (const auto& source : sources_.sources()) source->attributes().writeHeldIds();
}

bool HostIde::hasUnsavedChanges() const {
  const auto isChanged = [](const auto& entry) { return entry->file().isChanged(); };
  const auto& sources = sources_.sources();
  const auto& projects = projects_.projects_;
  return std::any_of(sources.begin(), sources.end(), isChanged) ||
         std::any_of(projects.begin(), projects.end(), isChanged);
}

std::optional<SaveFailure> HostIde::save(HostModule& module, OnConflict onConflict) {
  Source& source = module.source();
  return saveFile(files_, source.disk(), source.file(), source.file().page(), onConflict);
}

std::optional<SaveFailure> HostIde::saveProject(VBProject& project, OnConflict onConflict) {
  HostProject& saved = own(project);
  return saveFile(files_, saved.disk(), saved.file(), saved.codePage(), onConflict);
}

std::vector<SaveFailure> HostIde::saveAll(OnConflict onConflict) {
  std::vector<SaveFailure> failures;
  const auto note = [&](std::optional<SaveFailure> failure) {
    if (failure) failures.push_back(std::move(*failure));
  };
  for (const auto& source : sources_.sources()) {
    SourceFile& file = source->file();
    if (file.isChanged()) note(saveFile(files_, source->disk(), file, file.page(), onConflict));
  }
  for (const auto& project : projects_.projects_) {
    if (project->file().isChanged()) note(saveProject(*project, onConflict));
  }
  return failures;
}

std::vector<Diagnostic> HostIde::takeSaveWarnings() {
  std::vector<Diagnostic> warnings;
  for (const auto& source : sources_.sources()) {
    if (source->file().isChanged()) continue;
    for (const CutDescription& cut : source->attributes().takeCutDescriptions()) {
      std::string place = source->path();
      if (cut.line != 0) place += ", line " + std::to_string(cut.line);
      warnings.push_back({Diagnostic::About::project, Severity::warning, "cut-description",
                          place + ": the description of " +
                              (cut.name.empty() ? "the module" : cut.name) + " was cut after " +
                              std::to_string(cut.kept) + " of its " + std::to_string(cut.length) +
                              " characters, as Visual Basic reads no line of more than " +
                              std::to_string(kMaxLineLength)});
      warnings.back().place.file = source->path();
      warnings.back().place.line = cut.line;
    }
  }
  return warnings;
}

bool HostIde::changedOnDisk(const HostModule& module) const {
  return module.source().disk().isChanged(files_);
}

bool HostIde::changedOnDisk(const VBProject& project) const {
  return own(project).disk().isChanged(files_);
}

bool HostIde::isGone(const HostModule& module) const {
  return module.source().disk().isGone(files_);
}

bool HostIde::isGone(const VBProject& project) const {
  return own(project).disk().isGone(files_);
}

std::optional<std::string> HostIde::reload(HostModule& module) {
  return module.source().reload(files_);
}

}  // namespace tamrikon
