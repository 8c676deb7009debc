#include "workbench/unsaved_edits.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QLocale>
#include <QSaveFile>
#include <QUuid>
#include <algorithm>

#include "toolkit_qt/qt_text.h"
#include "workbench/block_text.h"
#include "workbench/file_content.h"

namespace tamrikon {
namespace {

constexpr int kPause = 1000;  // milliseconds between an edit and its being kept
constexpr auto kHeader = "Unsaved edits of a source, kept by Tamrikon Workbench";
constexpr auto kPattern = "*.edits";
constexpr auto kLock = "/lock";

QString nameFor(const QString& path) {
  const QByteArray hash = QCryptographicHash::hash(path.toUtf8(), QCryptographicHash::Sha1);
  return QString::fromLatin1(hash.toHex()) + ".edits";
}

QStringList linesOf(const HostModule& module) {
  const int count = module.CountOfLines();
  return count == 0 ? QStringList() : toBlocks(module.Lines(1, count));
}

/// The lines between those that are the same in both at the start and at the end.
struct Difference {
  Difference(const QStringList& now, const QStringList& then) {
    const qsizetype most = std::min(now.size(), then.size());
    while (same < most && now[same] == then[same]) ++same;
    qsizetype sameEnd = 0;
    while (sameEnd < most - same &&
           now[now.size() - 1 - sameEnd] == then[then.size() - 1 - sameEnd]) {
      ++sameEnd;
    }
    removed = now.mid(same, now.size() - same - sameEnd);
    inserted = then.mid(same, then.size() - same - sameEnd);
  }

  bool isNone() const { return removed.isEmpty() && inserted.isEmpty(); }
  int first() const { return static_cast<int>(same) + 1; }

  /// For people, some lines of it.
  QString inWords() const {
    constexpr int kShown = 6;
    QStringList words;
    const auto show = [&](const QStringList& lines, QLatin1String mark) {
      for (const QString& line : lines.mid(0, kShown)) words += mark + line.left(70);
      if (lines.size() > kShown) {
        words += QString("%1(and %2 more)").arg(mark).arg(lines.size() - kShown);
      }
    };
    const qsizetype last = same + removed.size();
    words += removed.isEmpty()     ? QString("Before line %1 come these lines:").arg(first())
             : removed.size() == 1 ? QString("Line %1 changes:").arg(first())
                                   : QString("Lines %1 to %2 change:").arg(first()).arg(last);
    show(removed, QLatin1String("- "));
    show(inserted, QLatin1String("+ "));
    return words.join('\n');
  }

  qsizetype same = 0;
  QStringList removed;
  QStringList inserted;
};

/// Removes the folder of a run if it keeps nothing any more.
void removeIfEmpty(const QString& folder, QLockFile& lock) {
  if (!QDir(folder).entryList({kPattern}, QDir::Files).isEmpty()) return;
  lock.unlock();
  QDir().rmdir(folder);
}

}  // namespace

class UnsavedEdits::Watch final : public SourceObserver {
 public:
  Watch(UnsavedEdits& edits, HostModule& module) : edits_(edits), module_(module) {
    module_.observe(*this);
  }
  ~Watch() override { module_.stopObserving(*this); }
  Watch(const Watch&) = delete;
  Watch& operator=(const Watch&) = delete;

 private:
  void linesChanged(int, int, int) override { edits_.note(module_); }
  void savedStateChanged() override { edits_.note(module_); }

  UnsavedEdits& edits_;
  HostModule& module_;
};

UnsavedEdits::UnsavedEdits(ProjectKeeper& keeper, Prompts& prompts, QString folder)
    : keeper_(keeper), prompts_(prompts), folder_(std::move(folder)) {
  writeSoon_.setSingleShot(true);
  connect(&writeSoon_, &QTimer::timeout, this, &UnsavedEdits::writeAll);
  connect(&keeper_, &ProjectKeeper::opened, this, &UnsavedEdits::follow);
  connect(&keeper_, &ProjectKeeper::closing, this, &UnsavedEdits::letGo);
  connect(&keeper_, &ProjectKeeper::saved, this, &UnsavedEdits::writeAll);
}

UnsavedEdits::~UnsavedEdits() {
  if (lock_) removeIfEmpty(own_, *lock_);
}

void UnsavedEdits::follow(const HostIde& ide) {
  for (HostModule* module : modulesOf(ide)) {
    watches_.push_back(std::make_unique<Watch>(*this, *module));
  }
}

/// The project is closed: what isn't saved isn't wanted.
void UnsavedEdits::letGo() {
  writeSoon_.stop();
  watches_.clear();
  edited_.clear();
  saved_.clear();
  if (own_.isEmpty()) return;
  for (const QString& name : QDir(own_).entryList({kPattern}, QDir::Files)) {
    QFile::remove(own_ + '/' + name);
  }
}

void UnsavedEdits::note(HostModule& module) {
  edited_ += &module;
  if (!writeSoon_.isActive()) writeSoon_.start(kPause);
}

void UnsavedEdits::writeAll() {
  for (HostModule* module : std::as_const(edited_)) write(*module);
  edited_.clear();
}

bool UnsavedEdits::write(HostModule& module) {
  const QString path = toQt(module.path());
  if (!module.isChanged()) {
    saved_.remove(&module);
    if (!own_.isEmpty()) QFile::remove(own_ + '/' + nameFor(path));
    return true;
  }
  if (!saved_.contains(&module)) {
    saved_[&module] = keeper_.ide()->changedOnDisk(module) ? QByteArray() : contentOf(path);
  }
  if (!hasFolder()) return false;
  QSaveFile file(own_ + '/' + nameFor(path));
  if (!file.open(QIODevice::WriteOnly)) return false;
  const QStringList text = QStringList{kHeader, path, saved_[&module].toHex(), ""} + linesOf(module);
  file.write(QByteArray::fromStdString(fromBlock(text.join('\n'))));
  return file.commit();
}

/// Makes the folder of this run, if there is none yet.
bool UnsavedEdits::hasFolder() {
  constexpr int kTries = 3;  // another program may take a new folder for one that was left
  for (int n = 0; own_.isEmpty() && !folder_.isEmpty() && n < kTries; ++n) {
    const QString folder = folder_ + '/' + QUuid::createUuid().toString(QUuid::WithoutBraces);
    if (!QDir().mkpath(folder)) return false;
    const auto forUser = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
    QFile::setPermissions(folder, forUser);
    lock_ = std::make_unique<QLockFile>(folder + kLock);
    lock_->setStaleLockTime(0);
    if (lock_->tryLock()) own_ = folder;
  }
  return !own_.isEmpty();
}

void UnsavedEdits::offer() {
  if (folder_.isEmpty()) return;
  // The last ones come last, so that they are what stays.
  for (const QString& name :
       QDir(folder_).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Time | QDir::Reversed)) {
    const QString folder = folder_ + '/' + name;
    if (folder != own_) offerFrom(folder);
  }
}

void UnsavedEdits::offerFrom(const QString& folder) {
  QLockFile lock(folder + kLock);
  lock.setStaleLockTime(0);
  if (!lock.tryLock()) return;  // its program runs
  for (HostModule* module : modulesOf(*keeper_.ide())) {
    const QString file = folder + '/' + nameFor(toQt(module->path()));
    if (QFile::exists(file) && offerFile(file, *module)) QFile::remove(file);
  }
  removeIfEmpty(folder, lock);
}

bool UnsavedEdits::offerFile(const QString& file, HostModule& module) {
  const std::optional<Kept> kept = read(file);
  const QString path = toQt(module.path());
  if (!kept || kept->path != path) return false;
  const Difference difference(linesOf(module), kept->lines);
  if (difference.isNone()) return true;
  enum { restore, discard, later };
  const QString when = QLocale().toString(QFileInfo(file).lastModified(), QLocale::ShortFormat);
  Question question{"The program ended before edits of " + toQt(module.Name()) + " were saved (" +
                        when + "). Restore them?",
                    path + '\n' + difference.inWords(),
                    {"&Restore", "&Discard", "Ask &Later"},
                    restore,
                    later};
  if (contentOf(path) != kept->saved) {
    question.details +=
        "\nThe file has been changed since by another program. Restored, the edits stand in place "
        "of its changes in these lines; Undo brings these back.";
    question.proposed = later;
  }
  const int answer = prompts_.ask(question);
  if (answer != restore) return answer == discard;
  const auto removed = static_cast<int>(difference.removed.size());
  if (difference.inserted.isEmpty()) {
    module.DeleteLines(difference.first(), removed);
  } else {
    module.replaceLines(difference.first(), removed, fromBlock(difference.inserted.join('\n')));
  }
  emit restored(module, difference.first());
  return write(module);
}

std::optional<UnsavedEdits::Kept> UnsavedEdits::read(const QString& name) {
  QFile file(name);
  if (!file.open(QIODevice::ReadOnly)) return std::nullopt;
  QStringList lines;
  for (const QByteArray& line : file.readAll().split('\n')) lines += toBlock(line.toStdString());
  constexpr int kHead = 4;
  if (lines.size() < kHead || lines[0] != kHeader) return std::nullopt;
  return Kept{lines[1], QByteArray::fromHex(lines[2].toLatin1()), lines.mid(kHead)};
}

}  // namespace tamrikon
