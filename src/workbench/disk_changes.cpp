#include "workbench/disk_changes.h"

#include <QApplication>
#include <QFileInfo>
#include <QScopedValueRollback>

#include "toolkit_qt/qt_text.h"
#include "workbench/file_content.h"
#include "workbench/lists_in_words.h"

namespace tamrikon {

DiskChanges::DiskChanges(ProjectKeeper& keeper, Prompts& prompts)
    : keeper_(keeper), prompts_(prompts) {
  connect(&keeper_, &ProjectKeeper::opened, this, &DiskChanges::follow);
  connect(&keeper_, &ProjectKeeper::closing, this, [this] { watch_.watch({}); });
  connect(&watch_, &FileWatch::changed, this, &DiskChanges::check);
}

void DiskChanges::follow(const HostIde& ide) {
  told_.clear();
  seen_.clear();
  QStringList paths;
  if (ide.isGroup()) {
    paths += keeper_.path();
    group_ = contentOf(keeper_.path());
  }
  for (int i = 1; i <= ide.VBProjects().Count(); ++i) {
    paths += toQt(ide.VBProjects().Item(i).FileName());
  }
  for (const HostModule* module : modulesOf(ide)) paths += toQt(module->path());
  for (const QString& path : paths) wasTouched(path);
  watch_.watch(paths);
}

void DiskChanges::check() {
  if (isChecking_ || keeper_.ide() == nullptr) return;
  // Not above another dialog: the window becomes active again when that has gone.
  if (QApplication::activeModalWidget() != nullptr) return;
  const QScopedValueRollback mark(isChecking_, true);
  const News news = look();
  if (!news.projects.isEmpty()) {
    enum { reopen, keep };
    const Question question{"The project has changed on disk. Open it again?",
                            inLines(news.projects),
                            {"&Open Again", "&Keep"},
                            reopen,
                            keep};
    // That reads everything.
    if (prompts_.ask(question) == reopen) return emit reopenWanted();
  }
  if (!news.gone.isEmpty()) {
    prompts_.ask(
        {"These files are gone from the disk. What was read of them stays open, and can "
         "be saved.",
         inLines(news.gone),
         {"OK"}});
  }
  if (!news.unedited.empty()) askToReload(news.unedited);
  for (HostModule* module : news.edited) askWhichToKeep(*module);
}

DiskChanges::News DiskChanges::look() {
  News news;
  const HostIde& ide = *keeper_.ide();
  const auto noteProject = [&](const QString& path, bool isGone) {
    (isGone ? news.gone : news.projects) += path;
  };
  if (ide.isGroup() && wasTouched(keeper_.path())) {
    const bool isChanged = contentOf(keeper_.path()) != group_;
    if (isNews(keeper_.path(), isChanged)) {
      noteProject(keeper_.path(), !QFileInfo::exists(keeper_.path()));
    }
  }
  for (int i = 1; i <= ide.VBProjects().Count(); ++i) {
    const HostProject& project = ide.VBProjects().Item(i);
    const QString path = toQt(project.FileName());
    if (!wasTouched(path) || !isNews(path, ide.changedOnDisk(project))) continue;
    noteProject(path, ide.isGone(project));
  }
  for (HostModule* module : modulesOf(ide)) {
    const QString path = toQt(module->path());
    if (!wasTouched(path) || !isNews(path, ide.changedOnDisk(*module))) continue;
    if (ide.isGone(*module)) {
      news.gone += path;
    } else {
      (module->isChanged() ? news.edited : news.unedited).push_back(module);
    }
  }
  return news;
}

/// Whether the file was written, removed or made since the last look.
bool DiskChanges::wasTouched(const QString& path) {
  const QFileInfo file(path);
  const Stamp now{file.lastModified(), file.exists() ? file.size() : -1};
  Stamp& seen = seen_[path];
  if (seen == now) return false;
  seen = now;
  return true;
}

/// Whether the user wasn't asked about that change yet.
bool DiskChanges::isNews(const QString& path, bool isChanged) {
  if (!isChanged) {
    told_.remove(path);
    return false;
  }
  const QByteArray content = contentOf(path);
  if (told_.value(path) == content) return false;
  told_[path] = content;
  return true;
}

void DiskChanges::askToReload(const std::vector<HostModule*>& modules) {
  enum { reloadThem, keep };
  QStringList names;
  for (const HostModule* module : modules) names += toQt(module->path());
  const QString text = modules.size() == 1
                           ? QString("Another program has changed this file. Read it again?")
                           : QString("Other programs have changed these files. Read them again?");
  const Question question{text, inLines(names), {"&Reload", "&Keep"}, reloadThem, keep};
  if (prompts_.ask(question) == reloadThem) reload(modules);
}

void DiskChanges::askWhichToKeep(HostModule& module) {
  enum { keepOwn, discard };
  const Question question{
      "Another program has changed this file, in which there are unsaved changes of your own.",
      toQt(module.path()) +
          "\nIf you keep your own, you are asked again before you overwrite the others.",
      {"&Keep My Changes", "&Discard Them and Reload"},
      keepOwn,
      keepOwn};
  if (prompts_.ask(question) == discard) reload({&module});
}

void DiskChanges::reload(const std::vector<HostModule*>& modules) {
  QStringList failures;
  for (HostModule* module : modules) {
    if (const auto failure = keeper_.ide()->reload(*module)) failures += toQt(*failure);
  }
  emit reloaded();
  if (!failures.isEmpty()) {
    prompts_.ask({"Not everything could be read again.", inLines(failures), {"OK"}});
  }
}

}  // namespace tamrikon
