#include <algorithm>
#include <map>
#include <set>

#include "base/case_folding.h"
#include "cli/commands.h"
#include "cli/comment_lookup.h"
#include "cli/patch_folder.h"
#include "cli/project_opening.h"
#include "cli/unified_diff.h"
#include "cli/unwritten_files.h"
#include "compiler/store.h"
#include "platform/data_folder.h"
#include "platform/text_decoding.h"

namespace tamrikon {
namespace {

class CommentRun {
 public:
  CommentRun(const CommentOptions& options, const Streams& streams)
      : options_(options), streams_(streams), terminal_(streams) {}

  int run() {
    ide_ = openProject(options_, terminal_, files());
    if (!ide_) return kFailed;
    Session session(terminal_.fileErrors, files(), nativeProcessServices(), dataFolder());
    for (VBProject* project : projectsOf(*ide_, options_.allProjects)) {
      activateProject(session, *ide_, *project, terminal_);
      modules_ = SettingsFile::codeModules(*ide_);
      find(session.settings);
    }
    if (!foundAll()) return kFailed;
    if (wasInterrupted()) {
      terminal_.complain("tamrikon: stopped; nothing was changed");
      return kFailed;
    }
    const bool mayRepeat = !options_.missing && !options_.allProjects;
    const auto inserted = insertSkeletons(found_, mayRepeat ? Repeats::insert : Repeats::leaveOut);
    const std::vector<SaveFailure> failures = ide_->saveAll();
    for (const SaveFailure& failure : failures) terminal_.complain("tamrikon: " + failure.text);
    if (options_.dryRun) {
      printChanges();
    } else {
      printInserted(inserted);
    }
    return failures.empty() ? kDone : kFailed;
  }

 private:
  FileSystem& files() { return options_.dryRun ? unwritten_ : nativeFileSystem(); }

  bool wasInterrupted() {
    interrupted_ = interrupted_ || streams_.isInterrupted();
    return interrupted_;
  }

  /// Adds to found_ what is in the active project, and to missing_ which targets aren't.
  void find(const ProjectSettings& settings) {
    for (const std::string& text : options_.targets) {
      try {
        findTarget(*readCommentTarget(text), settings);
        known_.insert(text);
      } catch (const IdeError& error) {
        missing_.emplace(text, error.what());
      }
    }
    if (!options_.missing) return;
    std::vector<Skeleton> found =
        missingSkeletons(sources_, settings, [this] { return !wasInterrupted(); });
    for (Skeleton& skeleton : found) {
      const auto& targets = options_.targets;
      const bool isWanted =
          targets.empty() || std::any_of(targets.begin(), targets.end(), [&](const auto& name) {
            return equalIgnoringCase(name, skeleton.source->name());
          });
      if (isWanted) found_.push_back(std::move(skeleton));
    }
  }

  void findTarget(const CommentTarget& target, const ProjectSettings& settings) {
    if (!options_.missing) {
      found_.push_back(skeletonAt(target, modules_, sources_, settings));
    } else if (!modules_.contains(target.module)) {
      throw IdeError("there is no module of that name");
    } else if (!settings.comModules.contains(target.module)) {
      terminal_.report({Diagnostic::About::project, Severity::warning, "unselected-module",
                        "the settings don't select module " + target.module + " to be documented"});
    }
  }

  /// Prints a line for each target that is in no project.
  bool foundAll() {
    bool allThere = true;
    for (const std::string& text : options_.targets) {
      if (known_.count(text) != 0) continue;
      terminal_.complain("tamrikon: '" + text + "': " + missing_.at(text));
      allThere = false;
    }
    return allThere;
  }

  void printInserted(const std::vector<const Skeleton*>& inserted) {
    if (inserted.empty()) {
      streams_.out << "No comment is missing.\n";
      return;
    }
    std::size_t count = 0;
    std::set<const ModuleSource*> modules;
    for (const Skeleton* skeleton : inserted) {
      const auto& module = static_cast<const HostModule&>(skeleton->source->module());
      if (module.isChanged()) continue;  // it couldn't be saved
      streams_.out << skeleton->name << '\n';
      modules.insert(skeleton->source);
      ++count;
    }
    const auto counted = [](std::size_t number, const std::string& what) {
      return std::to_string(number) + " " + what + (number == 1 ? "" : "s");
    };
    streams_.out << counted(count, "comment") << " inserted in "
                 << counted(modules.size(), "module") << ".\n";
  }

  /// As a patch the bytes of the files, for people to read the text of the files.
  void printChanges() {
    const CodePage& page = ide_->codePageOf(ide_->startupProject());
    const auto shown = [&](const std::string& bytes) {
      return streams_.outIsTerminal ? decodeText(bytes, page).text : bytes;
    };
    std::vector<std::string> paths;
    for (const auto& file : unwritten_.replacements()) paths.push_back(file.path);
    const PatchFolder folder(files(), paths);
    for (const UnwrittenFiles::Replacement& file : unwritten_.replacements()) {
      streams_.out << unifiedDiff(folder.nameOf(file.path), shown(file.before), shown(file.after));
    }
    if (paths.empty()) terminal_.complain("No comment is missing.");
    if (folder.fromHere() != ".") {
      terminal_.complain(
          "tamrikon: not all of the files lie below this folder; apply the diff with "
          "`patch -d " +
          folder.fromHere() + " -p0`");
    }
  }

  const CommentOptions& options_;
  const Streams& streams_;
  Terminal terminal_;
  UnwrittenFiles unwritten_{nativeFileSystem()};
  std::unique_ptr<HostIde> ide_;
  KeyedList<CodeModule*> modules_;
  SourceCache sources_;
  std::vector<Skeleton> found_;
  std::set<std::string> known_;                 // targets that are there
  std::map<std::string, std::string> missing_;  // why others aren't, in the first project
  bool interrupted_ = false;
};

}  // namespace

std::string faultOfTargets(const CommentOptions& options) {
  if (!options.missing) return options.targets.empty() ? "a TARGET is needed, or --missing" : "";
  for (const std::string& text : options.targets) {
    const std::optional<CommentTarget> target = readCommentTarget(text);
    if (!target || !target->isModule()) {
      return "'" + text + "' is no module: with --missing, the targets are modules";
    }
  }
  return {};
}

int commentCommand(const CommentOptions& options, const Streams& streams) {
  return CommentRun(options, streams).run();
}

}  // namespace tamrikon
