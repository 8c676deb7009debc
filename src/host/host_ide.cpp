#include "host/host_ide.h"

#include <cstdio>
#include <optional>
#include <set>
#include <utility>

#include "base/paths.h"
#include "base/utf8.h"
#include "host/code_page_guess.h"
#include "host/group_file.h"

namespace tamrikon {
namespace {

constexpr int kUtf8 = 65001;
constexpr int kGroupCodePage = 1252;

std::string reasonOf(FileError error) {
  switch (error) {
    case FileError::fileNotFound: return "there is no such file";
    case FileError::pathNotFound: return "there is no such folder";
    case FileError::permissionDenied: return "no permission";
    case FileError::diskFull: return "no space on the device";
    case FileError::deviceIo: return "input/output error";
    case FileError::deviceUnavailable: return "no such device";
    case FileError::badFileName: return "the name is not valid";
    default: return "it is not a file that can be opened";
  }
}

/// A path with a backslash keeps its style where it is absolute already.
std::string absolutePath(FileSystem& files, const std::string& path) {
  const bool hasOwnStyle = path.find('\\') != std::string::npos && isAbsolutePath(path);
  return hasOwnStyle ? path : files.absolute(path);
}

std::string lackingMessage(const CodePage& page, const LackingCharacter& lacking) {
  char codePoint[16];
  std::snprintf(codePoint, sizeof codePoint, "U+%04X", static_cast<unsigned>(lacking.codePoint));
  return ", line " + std::to_string(lacking.line) + ": code page " + std::to_string(page.number()) +
         " lacks " + codePoint;
}

/// Saves `file`, a source or project file, if it has changed; a message if that fails.
template <typename File>
std::optional<std::string> save(FileSystem& files, const std::string& path, File& file,
                                const CodePage& page) {
  if (!file.isChanged()) return std::nullopt;
  const std::string start = "cannot save " + path;
  LackingCharacter lacking;
  const std::optional<std::string> bytes = file.bytes(lacking);
  if (!bytes) return start + lackingMessage(page, lacking);
  const FileError error = files.replaceAtomically(path, *bytes);
  if (error != FileError::none) return start + ": " + reasonOf(error);
  file.setSaved();
  return std::nullopt;
}

}  // namespace

VBProject& HostProjects::Item(int number) const {
  if (number < 1 || number > Count()) throw IdeError("there is no project of that number");
  return *projects_[static_cast<std::size_t>(number - 1)];
}

std::unique_ptr<HostIde> HostIde::open(FileSystem& files, const std::string& path,
                                       const CodePage* codePage, const WarningSink& warn,
                                       std::string& why) {
  std::string bytes;
  const FileError error = files.read(path, bytes);
  if (error != FileError::none) {
    why = "cannot read " + path + ": " + reasonOf(error);
    return nullptr;
  }
  std::unique_ptr<HostIde> ide(new HostIde(files));
  ide->isGroup_ = isGroupFile(path, bytes);
  if (ide->isGroup_) {
    ide->openGroup(absolutePath(files, path), bytes, codePage, warn);
    if (ide->projects_.Count() == 0) {
      why = "cannot read " + path + ": it has no project that can be read";
      return nullptr;
    }
  } else {
    PathLookup lookup(files);
    ide->addProject(absolutePath(files, path), std::move(bytes), lookup, codePage, warn);
  }
  if (ide->startup_ == nullptr) ide->startup_ = &ide->projects_.Item(1);
  ide->active_ = ide->startup_;
  return ide;
}

HostProject* HostIde::addProject(std::string fileName, std::string bytes, PathLookup& lookup,
                                 const CodePage* codePage, const WarningSink& warn) {
  const ProjectContext context{lookup, sources_, codePage, warn, screen_};
  projects_.projects_.push_back(
      std::make_unique<HostProject>(std::move(fileName), std::move(bytes), context));
  return projects_.projects_.back().get();
}

void HostIde::openGroup(const std::string& path, std::string_view bytes, const CodePage* codePage,
                        const WarningSink& warn) {
  PathLookup lookup(files_);
  const std::string folder(folderOf(path));
  const int number = isValidUtf8(bytes) ? kUtf8 : kGroupCodePage;
  const CodePage* page = CodePage::find(number);
  if (number != kUtf8 && codePage != nullptr) page = codePage;
  std::set<std::string> opened;
  for (const GroupLine& line : readGroupFile(bytes)) {
    const FoundPath found = findInCodePages(lookup, folder, line.path, codePage);
    if (opened.count(found.path) != 0) continue;  // the IDE can't hold a project twice either
    std::string projectBytes;
    if (found.path.empty() || files_.read(found.path, projectBytes) != FileError::none) {
      warn(cannotReadWarning(PathLookup::tried(folder, page->decode(line.path))));
      continue;
    }
    opened.insert(found.path);
    HostProject* project = addProject(found.path, std::move(projectBytes), lookup, codePage, warn);
    if (line.isStartup && startup_ == nullptr) startup_ = project;
  }
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

const CodePage& HostIde::codePageOf(const VBProject& project) const {
  for (const auto& own : projects_.projects_) {
    if (own.get() == &project) return own->codePage();
  }
  throw IdeError("the project is not one of this IDE's");
}

std::vector<std::string> HostIde::saveAll() {
  std::vector<std::string> failures;
  const auto note = [&](std::optional<std::string> failure) {
    if (failure) failures.push_back(std::move(*failure));
  };
  for (const auto& source : sources_.sources()) {
    note(save(files_, source->path(), source->file(), source->file().page()));
  }
  for (const auto& project : projects_.projects_) {
    note(save(files_, project->FileName(), project->file(), project->codePage()));
  }
  return failures;
}

}  // namespace tamrikon
