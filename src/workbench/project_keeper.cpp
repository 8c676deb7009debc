#include "workbench/project_keeper.h"

#include <algorithm>
#include <set>

#include "toolkit_qt/qt_text.h"
#include "workbench/lists_in_words.h"

namespace tamrikon {

std::vector<HostModule*> modulesOf(const HostIde& ide) {
  std::vector<HostModule*> modules;
  std::set<std::string> paths;
  for (int i = 1; i <= ide.VBProjects().Count(); ++i) {
    HostComponents& components = ide.VBProjects().Item(i).VBComponents();
    for (int j = 1; j <= components.Count(); ++j) {
      HostModule* module = components.Item(j).CodeModule();
      if (module != nullptr && paths.insert(module->path()).second) modules.push_back(module);
    }
  }
  return modules;
}

bool ProjectKeeper::open(const QString& path) {
  const std::string absolute = files_.absolute(fromQt(path));
  if (!HostIde::isProjectFile(absolute)) {
    prompts_.ask({"Only projects (.vbp) and project groups (.vbg) can be opened.", path, {"OK"}});
    return false;
  }
  if (ide_ && !letGo()) return false;
  std::vector<Diagnostic> faults;
  std::string why;
  std::unique_ptr<HostIde> ide = HostIde::open(
      files_, absolute, nullptr, [&](const Diagnostic& fault) { faults.push_back(fault); }, why);
  if (!ide) {
    prompts_.ask({"The project can't be opened.", toQt(why), {"OK"}});
    return false;
  }
  if (ide_) emit closing(*ide_);
  ide_ = std::move(ide);
  path_ = toQt(absolute);
  emit opened(*ide_, faults);
  return true;
}

bool ProjectKeeper::close() {
  if (!ide_) return true;
  if (!letGo()) return false;
  emit closing(*ide_);
  ide_.reset();
  path_.clear();
  emit closed();
  return true;
}

bool ProjectKeeper::isUnsaved(const HostModule& module) const {
  return module.isChanged() || ide_->isGone(module);
}

/// Asks what to do about changes that aren't saved. Whether the project may be closed.
bool ProjectKeeper::letGo() {
  QStringList edited;
  QStringList written;  // nobody has edited these, but a command has written to them
  QStringList what;
  for (const HostModule* module : modulesOf(*ide_)) {
    if (!isUnsaved(*module)) continue;
    const bool isGone = ide_->isGone(*module);
    const QString name = toQt(module->path()) + (isGone ? " (gone from the disk)" : "");
    const EditSubjects subjects = module->changedSubjects();
    if (isGone || subjects.test(EditSubject::code)) {
      edited += name;
      continue;
    }
    written += name;
    if (subjects.test(EditSubject::helpContextId)) what += "help context IDs";
    if (subjects.test(EditSubject::description)) what += "descriptions";
  }
  for (int i = 1; i <= ide_->VBProjects().Count(); ++i) {
    const HostProject& project = ide_->VBProjects().Item(i);
    if (!project.isChanged()) continue;
    written += toQt(project.FileName());
    what += "the name of the help file";
  }
  if (edited.isEmpty() && written.isEmpty()) return true;
  what.removeDuplicates();
  enum { save, discard, cancel };
  Question question{"Save the changes to this file before it is closed?",
                    inLines(edited + written),
                    {"&Save", "&Don't Save", "Cancel"},
                    save,
                    cancel};
  const qsizetype all = edited.size() + written.size();
  if (all > 1) question.text = QString("Save the changes to these %1 files?").arg(all);
  if (!written.isEmpty()) {
    const QString where =
        edited.isEmpty() ? QString() : QString(" in %1 of them").arg(written.size());
    question.text += "\nNothing but " + what.join(" and ") + " has changed" + where + '.';
  }
  const int answer = prompts_.ask(question);
  return answer == save ? saveAll() : answer == discard;
}

bool ProjectKeeper::save(HostModule& module) {
  Failures failures;
  const bool isSaved = saveOne(module, failures);
  tellFailures(failures);
  emit saved();
  return isSaved;
}

bool ProjectKeeper::saveAll() {
  Failures failures;
  bool areSaved = true;
  for (HostModule* module : modulesOf(*ide_)) {
    if (isUnsaved(*module)) areSaved = saveOne(*module, failures) && areSaved;
  }
  for (int i = 1; i <= ide_->VBProjects().Count(); ++i) {
    HostProject& project = ide_->VBProjects().Item(i);
    if (project.isChanged()) areSaved = saveOne(project, failures) && areSaved;
  }
  tellFailures(failures);
  emit saved();
  return areSaved;
}

bool ProjectKeeper::saveOne(HostModule& module, Failures& failures) {
  if (!module.isChanged() && !ide_->changedOnDisk(module)) return true;
  const auto onConflict = howToWrite(module, module.path());
  if (!onConflict) return false;
  const auto failure = ide_->save(module, *onConflict);
  if (!failure) return true;
  failures.messages += toQt(failure->text);
  if (failures.module == nullptr && failure->line > 0) {
    failures.module = &module;
    failures.line = failure->line;
    failures.column = failure->column;
  }
  return false;
}

bool ProjectKeeper::saveOne(HostProject& project, Failures& failures) {
  const auto onConflict = howToWrite(project, project.FileName());
  if (!onConflict) return false;
  const auto failure = ide_->saveProject(project, *onConflict);
  if (failure) failures.messages += toQt(failure->text);
  return !failure;
}

/// Asks before something is overwritten that isn't known here. Nothing if it is to be left alone.
template <typename Saved>
std::optional<OnConflict> ProjectKeeper::howToWrite(const Saved& saved, const std::string& path) {
  if (!ide_->changedOnDisk(saved)) return OnConflict::fail;
  enum { write, cancel };
  Question question{"Another program has changed this file. Overwrite its changes?",
                    toQt(path),
                    {"&Overwrite", "Cancel"},
                    cancel,
                    cancel};
  if (ide_->isGone(saved)) {
    question.text = "This file is gone from the disk. Write it anew?";
    question.answers[write] = "&Write Anew";
    question.proposed = write;
  }
  if (prompts_.ask(question) == write) return OnConflict::overwrite;
  return std::nullopt;
}

void ProjectKeeper::tellFailures(const Failures& failures) {
  if (failures.messages.isEmpty()) return;
  prompts_.ask({"Not everything could be saved. The changes are still in the editor.",
                inLines(failures.messages),
                {"OK"}});
  if (failures.module == nullptr) return;
  const int column = std::max(failures.column, 1);
  const int end = failures.column == 0 ? column : column + 1;  // a hidden line can't be shown
  emit saveFailed(*failures.module, {failures.line, column, failures.line, end});
}

}  // namespace tamrikon
