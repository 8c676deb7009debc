#include "compiler/output_pages.h"

#include <stdexcept>
#include <utility>

#include "base/paths.h"
#include "compiler/external_programs.h"
#include "compiler/topic_order.h"
#include "model/index_contents.h"
#include "template/expansion_budget.h"

namespace tamrikon {
namespace {

// Whatever a template adds to each page: thousands of pages of megabytes, before it counts.
constexpr std::size_t kFreeSize = std::size_t{2} << 30;
constexpr std::size_t kMaxGrowth = 1000;

// Topics that are appended one by one take a compile a fifth more time.
constexpr std::size_t kEnoughToAppend = std::size_t{1} << 16;

constexpr std::string_view kMemberExtension = "MEMBER-EXT";
constexpr std::string_view kProjectBody = "tamrik-project-body";

}  // namespace

/// A page of the group or the project.
struct OutputPages::Page {
  enum class Of { group, project, projectTitle };

  std::string_view progress;
  std::string_view extension;  // a macro; empty: as the page before
  std::string_view section;
  Of of = Of::project;
  Write write = Write::replace;
};

const OutputPages::Page OutputPages::kFiles[] = {
    {"group's project file...", "PROJECT-EXT", "tamrik-group-project-body", Page::Of::group},
    {"group's contents...", "CONTENTS-EXT", "tamrik-group-contents-body", Page::Of::group},
    {"project file...", "PROJECT-EXT", kProjectBody},
    {"contents...", "CONTENTS-EXT", "tamrik-contents-body"},
    {"index...", "INDEX-EXT", "tamrik-index-body"},
    {"title page...", kMemberExtension, "tamrik-title-body", Page::Of::projectTitle},
};

// With a group, all goes on with the extension of the group's project file.
const OutputPages::Page OutputPages::kBeforeTopics[] = {
    {"group's project file...", "PROJECT-EXT", "tamrik-group-project-body", Page::Of::group},
    {"group's contents...", "", "tamrik-group-contents-body", Page::Of::group, Write::append},
    {"project file...", "", kProjectBody},
    {"title page...", "", "tamrik-title-body", Page::Of::project, Write::append},
    {"contents...", "", "tamrik-contents-body", Page::Of::project, Write::append},
};

const OutputPages::Page OutputPages::kIndex = {"index...", "", "tamrik-index-body",
                                               Page::Of::project, Write::append};

OutputPages::OutputPages(CompileContext& context)
    : compile_(context),
      settings_(context.session.settings),
      run_(context.run),
      store_(context.compiled),
      context_(store_.pageContext()),
      projectName_(context.ide.ActiveVBProject().Name()),
      maxWritten_(kFreeSize + kMaxGrowth * store_.sourceSize()) {
  run_.writtenFiles.beginProject(projectName_, context.ide.ActiveVBProject().FileName(),
                                 context.files.files().absolute(settings_.outputPath));
}

void OutputPages::put(Write write, std::string_view name, std::string_view extension,
                      std::string_view text) {
  const std::string file = std::string(name).append(extension);
  if (!writePage(write, settings_.outputPath + file, text)) return;
  if (write == Write::append) {
    run_.writtenFiles.append();
  } else {
    run_.writtenFiles.add(file, compile_.files.changedFile());
  }
}

/// Each project of a group writes its pages anew: they take the place of no others.
void OutputPages::putGroupPage(Write write, std::string_view extension, std::string_view text) {
  const std::string& above = run_.groupFolders.above;
  const std::string& folder = above.empty() ? settings_.outputPath : above;
  const std::string path = joinPath(withoutTrailingSeparator(folder), "Group+").append(extension);
  if (!writePage(write, path, text)) return;
  if (write == Write::append) {
    run_.writtenFiles.append();
  } else {
    run_.writtenFiles.addGroupPage(path, compile_.files.changedFile());
  }
}

/// Whether the page was written. A failure has been reported by the writer; an answer that gives up
/// shows at the next checkpoint.
bool OutputPages::writePage(Write write, const std::string& path, std::string_view text) {
  const PhaseScope phase(run_.times, CompilePhase::writing);
  written_ += text.size();
  if (written_ > maxWritten_) throw std::length_error("The pages take up too much space.");
  if (write == Write::append) return compile_.files.appendTextFile(path, text, false) == 0;
  return compile_.files.writeTextFile(path, text, false) == 0;
}

/// Writes the page, whose extension becomes `extension`. False if the compile is to end.
bool OutputPages::putPage(const Page& page, std::string& extension) {
  if (page.of == Page::Of::group && !run_.compileWholeGroup) return true;
  store_.log().ShowProgress(page.progress, "");
  if (!page.extension.empty()) extension = store_.evaluateMacro(page.extension);
  if (page.section == kProjectBody) {
    store_.macros().setProjectText("PROJECT-NAME", projectName_);
  }
  const std::string text = store_.evaluateMacro(page.section);
  switch (page.of) {
    case Page::Of::group: putGroupPage(page.write, extension, text); break;
    case Page::Of::project: put(page.write, projectName_, extension, text); break;
    case Page::Of::projectTitle: put(page.write, projectName_ + "+title", extension, text); break;
  }
  return compile_.checkpoint();
}

void OutputPages::compileFiles() {
  if (putFiles()) closingSteps();
}

/// Nothing holds the folder any more when the closing steps begin.
bool OutputPages::putFiles() {
  const auto folder = compile_.files.files().keepOpen(settings_.outputPath);
  std::string extension;
  for (const Page& page : kFiles) {
    if (!putPage(page, extension)) return false;
  }
  return putTopics();
}

bool OutputPages::wantsTopic(const Wrapper& wrapper) const {
  return wrapper.kind() != WrapperKind::module ||
         settings_.wantsModule(moduleKindOf(wrapper.source().type()));
}

/// Tells whose topic has no end.
std::string OutputPages::topicOf(Wrapper& wrapper) {
  try {
    return wrapper.compile(context_);
  } catch (const BudgetUsedUp& usedUp) {
    throw BudgetUsedUp(std::string(usedUp.what()) + ", in the topic of " +
                       store_.model().links.pageInWork());
  }
}

bool OutputPages::putTopics() {
  const std::string extension = store_.evaluateMacro(kMemberExtension);
  for (const WrapperRef& wrapper : store_.compiledList()) {
    if (!compile_.checkpoint()) return false;
    store_.model().links.compiledWrapper = wrapper.get();
    const std::string& module = wrapper->source().name();
    const bool isModule = wrapper->kind() == WrapperKind::module;
    store_.log().ShowProgress(module, isModule ? std::string() : wrapper->name());
    if (wantsTopic(*wrapper)) {
      const std::string name = isModule ? module : module + "-" + wrapper->name();
      std::string page = topicOf(*wrapper);
      put(Write::replace, name, extension, page);
      store_.macros().reuse(std::move(page));
    }
    compile_.listener.setProgress(++topicsDone_, store_.compiledList().size());
  }
  return true;
}

void OutputPages::closingSteps() {
  store_.log().ShowProgress("external programs...", "");
  // Expanded in any case: what the section does to counters and the log mustn't depend on a switch.
  const std::string commands = store_.evaluateMacro("tamrik-exec-after");
  if (run_.runsPrograms) {
    const PhaseScope phase(run_.times, CompilePhase::programs);
    ExternalPrograms(compile_).runExternalPrograms(commands);
  }
  // A request to cancel that came behind the last topic is meant for this project.
  if (!compile_.checkpoint()) return;
  if (settings_.comContextID) {
    compile_.ide.ActiveVBProject().setHelpFile(store_.helpFile());
  }
}

void OutputPages::compileSingleFile() {
  std::string extension = store_.evaluateMacro(kMemberExtension);
  for (const Page& page : kBeforeTopics) {
    if (!putPage(page, extension)) return;
  }
  if (!appendTopics(extension)) return;
  if (putPage(kIndex, extension)) closingSteps();
}

bool OutputPages::appendTopics(const std::string& extension) {
  std::string text;
  const auto putFinished = [&] {
    if (!text.empty()) put(Write::append, projectName_, extension, std::exchange(text, {}));
  };
  try {
    for (const std::vector<WrapperRef>& stretch : topicOrder(store_.compiledList())) {
      if (!compile_.checkpoint()) {
        putFinished();
        return false;
      }
      for (const WrapperRef& wrapper : stretch) {
        addTopic(*wrapper, text);
        if (text.size() >= kEnoughToAppend) putFinished();
      }
    }
  } catch (const BudgetUsedUp&) {
    putFinished();
    throw;
  }
  putFinished();
  return true;
}

void OutputPages::addTopic(Wrapper& wrapper, std::string& text) {
  store_.model().links.compiledWrapper = &wrapper;
  const bool isModule = wrapper.kind() == WrapperKind::module;
  store_.log().ShowProgress(wrapper.source().name(), isModule ? std::string() : wrapper.name());
  if (wantsTopic(wrapper)) {
    std::string topic = topicOf(wrapper);
    text += topic;
    store_.macros().reuse(std::move(topic));
  }
  compile_.listener.setProgress(++topicsDone_, store_.compiledList().size());
}

}  // namespace tamrikon
