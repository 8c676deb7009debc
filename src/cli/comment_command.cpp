#include <algorithm>
#include <set>

#include "base/case_folding.h"
#include "cli/commands.h"
#include "cli/comment_lookup.h"
#include "cli/path_from_here.h"
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
      : options_(options), streams_(streams), terminal_(streams, false) {}

  int run() {
    ide_ = openProject(options_, terminal_, files());
    if (!ide_) return kFailed;
    Session session(terminal_, files(), nativeProcessServices(), dataFolder());
    activateProject(session, *ide_, ide_->startupProject(), terminal_);
    modules_ = SettingsFile::codeModules(*ide_);
    if (!find(session.settings)) return kFailed;
    if (wasInterrupted()) {
      terminal_.complain("tamrikon: stopped; nothing was changed");
      return kFailed;
    }
    const auto inserted =
        insertSkeletons(found_, options_.missing ? Repeats::leaveOut : Repeats::insert);
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

  /// Fills found_. False, with a line for each target that isn't there, if one isn't.
  bool find(const ProjectSettings& settings) {
    bool allThere = true;
    for (const std::string& text : options_.targets) {
      const CommentTarget target = *readCommentTarget(text);
      const auto isThere = [&] {
        if (!options_.missing) {
          found_.push_back(skeletonAt(target, modules_, sources_, settings));
        } else if (!modules_.contains(target.module)) {
          throw IdeError("there is no module of that name");
        } else if (!settings.comModules.contains(target.module)) {
          terminal_.complain("warning: the settings don't select module " + target.module +
                             " to be documented");
        }
      };
      try {
        isThere();
      } catch (const IdeError& error) {
        terminal_.complain("tamrikon: '" + text + "': " + error.what());
        allThere = false;
      }
    }
    if (!allThere || !options_.missing) return allThere;
    found_ = missingSkeletons(sources_, settings, [this] { return !wasInterrupted(); });
    if (options_.targets.empty()) return true;
    std::erase_if(found_, [&](const Skeleton& skeleton) {
      return std::none_of(options_.targets.begin(), options_.targets.end(), [&](const auto& name) {
        return equalIgnoringCase(name, skeleton.source->name());
      });
    });
    return true;
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
    for (const UnwrittenFiles::Replacement& file : unwritten_.replacements()) {
      streams_.out << unifiedDiff(pathFromHere(files(), file.path), shown(file.before),
                                  shown(file.after));
    }
    if (unwritten_.replacements().empty()) terminal_.complain("No comment is missing.");
  }

  const CommentOptions& options_;
  const Streams& streams_;
  Terminal terminal_;
  UnwrittenFiles unwritten_{nativeFileSystem()};
  std::unique_ptr<HostIde> ide_;
  KeyedList<CodeModule*> modules_;
  SourceCache sources_;
  std::vector<Skeleton> found_;
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
