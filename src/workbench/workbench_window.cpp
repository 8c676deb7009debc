#include "workbench/workbench_window.h"

#include <QCloseEvent>
#include <QDir>
#include <QDockWidget>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QMenuBar>
#include <QMimeData>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTextBlock>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>

#include "base/paths.h"
#include "platform/user_folders.h"
#include "toolkit_qt/qt_text.h"
#include "workbench/block_text.h"
#include "workbench/program_name.h"

namespace tamrikon {
namespace {

constexpr auto kGeometryKey = "Window/Geometry";
constexpr auto kStateKey = "Window/State";
constexpr int kStateVersion = 1;

/// In the folder of the registry, where it is moved to from the place that it once had.
QString userSettingsFile() {
  const QSettings old("Tamrikon", "Tamrikon");
  if (userConfigFolder().empty()) return old.fileName();
  const QString folder = toQt(joinPath(userConfigFolder(), "tamrikon"));
  const QString file = folder + "/workbench.ini";
  if (!QFile::exists(file) && QFile::exists(old.fileName()) && QDir().mkpath(folder)) {
    QSettings moved(file, QSettings::IniFormat);
    for (const QString& key : old.allKeys()) moved.setValue(key, old.value(key));
    moved.sync();
    if (moved.status() == QSettings::NoError && QFile::remove(old.fileName())) {
      QDir().rmdir(QFileInfo(old.fileName()).path());
    }
  }
  return file;
}

/// Empty for a user without a home.
QString folderOfUnsavedEdits() {
  const std::string folder = userStateFolder();
  return folder.empty() ? QString() : toQt(joinPath(folder, "tamrikon/unsaved"));
}

/// The path of a project among what is dragged, or empty.
QString projectIn(const QMimeData& data) {
  for (const QUrl& url : data.urls()) {
    if (url.isLocalFile() && HostIde::isProjectFile(fromQt(url.toLocalFile()))) {
      return url.toLocalFile();
    }
  }
  return {};
}

QDockWidget* makeDock(QMainWindow& window, const char* name, const QString& title, QWidget& content,
                      Qt::DockWidgetArea area) {
  auto* dock = new QDockWidget(title, &window);
  dock->setObjectName(name);
  dock->setWidget(&content);
  window.addDockWidget(area, dock);
  return dock;
}

/// A move, which may be what is proposed, would make the other program remove its file.
void acceptCopy(QDropEvent& event) {
  event.setDropAction(Qt::CopyAction);
  event.accept();
}

}  // namespace

WorkbenchWindow::WorkbenchWindow(const WorkbenchOptions& options)
    : ownPrompts_(std::make_unique<BoxPrompts>(*this)),
      prompts_(options.prompts != nullptr ? *options.prompts : *ownPrompts_),
      settings_(options.settingsFile.isEmpty() ? userSettingsFile() : options.settingsFile,
                QSettings::IniFormat),
      recent_(settings_),
      keeper_(prompts_, nativeFileSystem()),
      diskChanges_(keeper_, prompts_),
      unsavedEdits_(keeper_, prompts_, folderOfUnsavedEdits()),
      actions_(*this),
      tabs_(*new CodeTabs(this)),
      findBar_(*new FindBar(this)),
      explorer_(*new ProjectExplorer(this)),
      messages_(*new MessageList(this)),
      screen_(*this, tabs_),
      vbe_(keeper_, screen_),
      addInHost_(*this, vbe_, [this](const Diagnostic& fault) { showFault(fault); }),
      addIns_(addInHost_, userRegistry()),
      recentMenu_(*actions_.recent, recent_, prompts_),
      codeCommands_(actions_, tabs_, findBar_, prompts_, settings_) {
  setObjectName("workbench");
  setAcceptDrops(true);
  layOut();
  nameBars();
  connectCommands();
  connectParts();
  restoreLayout();
  showState();
}

WorkbenchWindow::~WorkbenchWindow() {
  if (ide() != nullptr) projectClosing(*ide());
}

void WorkbenchWindow::layOut() {
  hint_ = new QLabel;
  hint_->setObjectName("hint");
  hint_->setAlignment(Qt::AlignCenter);
  hint_->setForegroundRole(QPalette::PlaceholderText);
  middle_ = new QStackedWidget;
  middle_->addWidget(hint_);
  middle_->addWidget(&tabs_);
  auto* centre = new QWidget(this);
  auto* layout = new QVBoxLayout(centre);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(middle_, 1);
  layout->addWidget(&findBar_);
  setCentralWidget(centre);

  explorerDock_ =
      makeDock(*this, "explorerDock", "Project Explorer", explorer_, Qt::LeftDockWidgetArea);
  messagesDock_ = makeDock(*this, "messagesDock", "Messages", messages_, Qt::BottomDockWidgetArea);
  messagesDock_->hide();
  setCorner(Qt::BottomLeftCorner, Qt::LeftDockWidgetArea);

  caret_ = new QLabel;
  caret_->setObjectName("caretPlace");
  statusBar()->addPermanentWidget(caret_);
}

void WorkbenchWindow::nameBars() {
  screen_.commandBars().add("Menu Bar", *menuBar());
  screen_.commandBars().add("Standard", *actions_.standard);
  screen_.commandBars().add("Add-Ins", *actions_.addIns);
  screen_.commandBars().add("Code Window", *actions_.codeWindow);
}

bool WorkbenchWindow::openProject(const QString& path) {
  if (!keeper_.open(path)) return false;
  recent_.add(keeper_.path());
  return true;
}

void WorkbenchWindow::projectOpened(HostIde& ide, const std::vector<Diagnostic>& faults) {
  ide.setScreen(&screen_);
  explorer_.show(&ide);
  explorer_.setFocus();
  QList<Message> messages;
  for (const Diagnostic& fault : faults) messages += Message{toQt(lineOf(fault)), nullptr, {}};
  messages_.show(messages);
  // Notes, such as that of a code page, can be read there; they needn't be seen.
  const bool isWarned = std::any_of(faults.begin(), faults.end(), [](const Diagnostic& fault) {
    return fault.severity != Severity::note;
  });
  if (isWarned) messagesDock_->show();
  userTags_.follow(&ide);
  showState();
  for (int i = 1; i <= ide.VBProjects().Count(); ++i) {
    screen_.events().projects().projectAdded(ide.VBProjects().Item(i));
  }
  unsavedEdits_.offer();
}

void WorkbenchWindow::showFault(const Diagnostic& fault) {
  const QString text = toQt(lineOf(fault));
  if (messages_.findItems(text, Qt::MatchExactly).isEmpty()) messages_.add({text, nullptr, {}});
  messagesDock_->show();
}

void WorkbenchWindow::projectClosing(HostIde& ide) {
  for (int i = 1; i <= ide.VBProjects().Count(); ++i) {
    screen_.projectRemoved(ide.VBProjects().Item(i));
  }
  screen_.clear();
  explorer_.show(nullptr);
  messages_.show({});
  userTags_.follow(nullptr);
  ide.setScreen(nullptr);
}

void WorkbenchWindow::reopenProject() {
  struct Place {
    std::string path;
    Selection selection;
    int topLine;
  };
  std::vector<Place> places;  // the one in front is the last
  const auto note = [&](const CodeWindow& window) {
    const CodeEditor& editor = window.editor();
    places.push_back({window.module().path(), editor.selection(), editor.topLine()});
  };
  for (const CodeWindow* window : tabs_.windows()) note(*window);
  if (tabs_.current() != nullptr) note(*tabs_.current());
  if (!openProject(keeper_.path())) return;
  for (const Place& place : places) {
    for (HostModule* module : modulesOf(*ide())) {
      if (module->path() != place.path) continue;
      CodeEditor& editor = showCode(*module).editor();
      editor.setSelection(place.selection);
      editor.setTopLine(place.topLine);
    }
  }
}

void WorkbenchWindow::frontChanged() {
  if (ide() != nullptr && tabs_.current() != nullptr) {
    const HostModule& module = tabs_.current()->module();
    explorer_.select(module);
    ide()->activate(module.component().project());
  }
  showState();
}

void WorkbenchWindow::showState() {
  const CodeWindow* front = tabs_.current();
  const bool isOpen = ide() != nullptr;
  middle_->setCurrentIndex(front == nullptr ? 0 : 1);
  hint_->setText(isOpen ? "Choose a module in the Project Explorer (Ctrl+R)."
                        : "Open a project (Ctrl+O), or drop a .vbp or .vbg file here.");
  actions_.saveAll->setEnabled(isOpen);
  actions_.closeProject->setEnabled(isOpen);
  actions_.findInProject->setEnabled(isOpen);
  QString title = kWorkbenchName;
  if (front != nullptr) {
    title = front->title() + (front->module().isChanged() ? "* - " : " - ") + title;
  } else if (isOpen) {
    title = toQt(ide()->ActiveVBProject().Name()) + " - " + title;
  }
  setWindowTitle(title);
}

void WorkbenchWindow::showCaret() {
  const CodeWindow* front = tabs_.current();
  if (front == nullptr) return caret_->clear();
  const QTextCursor cursor = front->editor().textCursor();
  const QString place = QString("Ln %1, Col %2")
                            .arg(cursor.blockNumber() + 1)
                            .arg(columnAt(cursor.block().text(), cursor.positionInBlock()));
  caret_->setText(front->editor().overwriteMode() ? "OVR  " + place : place);
}

void WorkbenchWindow::restoreLayout() {
  resize(1180, 760);
  resizeDocks({explorerDock_}, {290}, Qt::Horizontal);
  resizeDocks({messagesDock_}, {140}, Qt::Vertical);
  restoreGeometry(settings_.value(kGeometryKey).toByteArray());
  restoreState(settings_.value(kStateKey).toByteArray(), kStateVersion);
  messagesDock_->hide();  // until there are some
}

void WorkbenchWindow::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) addInHost_.send(WindowMessage::sysColorChange);
  if (event->type() == QEvent::ActivationChange && isActiveWindow()) {
    // Not within the event, as it may ask.
    QTimer::singleShot(0, &diskChanges_, &DiskChanges::check);
  }
}

void WorkbenchWindow::closeEvent(QCloseEvent* event) {
  settings_.setValue(kGeometryKey, saveGeometry());
  settings_.setValue(kStateKey, saveState(kStateVersion));
  event->setAccepted(keeper_.close());
}

void WorkbenchWindow::dragEnterEvent(QDragEnterEvent* event) {
  if (!projectIn(*event->mimeData()).isEmpty()) acceptCopy(*event);
}

void WorkbenchWindow::dropEvent(QDropEvent* event) {
  const QString path = projectIn(*event->mimeData());
  if (path.isEmpty()) return;
  acceptCopy(*event);
  // Not within the event, as the other program waits for its end.
  QTimer::singleShot(0, this, [this, path] { openProject(path); });
}

}  // namespace tamrikon
