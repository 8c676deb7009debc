#include "toolkit_qt/qt_toolkit.h"

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QEventLoop>
#include <QFileDialog>
#include <QMessageBox>
#include <exception>
#include <memory>

#include "toolkit_qt/dialog_window.h"
#include "toolkit_qt/file_filter.h"
#include "toolkit_qt/qt_text.h"
#include "toolkit_qt/title_room.h"

namespace tamrikon {
namespace {

constexpr qint64 kBetweenEvents = 15;  // milliseconds

QMessageBox::StandardButtons buttonsOf(MessageButtons buttons) {
  switch (buttons) {
    case MessageButtons::ok: return QMessageBox::Ok;
    case MessageButtons::okCancel: return QMessageBox::Ok | QMessageBox::Cancel;
    case MessageButtons::retryCancel: return QMessageBox::Retry | QMessageBox::Cancel;
    case MessageButtons::yesNo: return QMessageBox::Yes | QMessageBox::No;
    case MessageButtons::yesNoCancel:
      return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
  }
  return QMessageBox::Ok;
}

QMessageBox::Icon iconOf(MessageIcon icon) {
  switch (icon) {
    case MessageIcon::none: return QMessageBox::NoIcon;
    case MessageIcon::exclamation: return QMessageBox::Warning;
    case MessageIcon::question: return QMessageBox::Question;
    case MessageIcon::information: return QMessageBox::Information;
  }
  return QMessageBox::NoIcon;
}

/// The button that Esc and the close box stand for.
QMessageBox::StandardButton wayOut(MessageButtons buttons) {
  if (buttons == MessageButtons::ok) return QMessageBox::Ok;
  return buttons == MessageButtons::yesNo ? QMessageBox::No : QMessageBox::Cancel;
}

MessageAnswer answerOf(int button) {
  switch (button) {
    case QMessageBox::Ok: return MessageAnswer::ok;
    case QMessageBox::Retry: return MessageAnswer::retry;
    case QMessageBox::Yes: return MessageAnswer::yes;
    case QMessageBox::No: return MessageAnswer::no;
    default: return MessageAnswer::cancel;
  }
}

}  // namespace

QWidget* QtToolkit::window() const {
  if (!shown_.empty() && shown_.back()) return shown_.back();
  QWidget* active = QApplication::activeWindow();
  return active != nullptr ? active : owner_.data();
}

/// Not all desktops do so by themselves.
void QtToolkit::returnFocus() const {
  if (shown_.empty() || !shown_.back() || !shown_.back()->isVisible()) return;
  shown_.back()->raise();
  shown_.back()->activateWindow();
}

void QtToolkit::runModal(Dialog& dialog) {
  QEventLoop loop;
  bool isClosed = false;
  // The owner may take its dialogs with it.
  const QPointer<DialogWindow> dialogWindow =
      new DialogWindow(dialog, window(), [&loop, &isClosed] {
        isClosed = true;
        loop.quit();
      });
  const auto size = sizes_.find(dialog.name());
  // The screen may be another one by now.
  dialogWindow->resize(size == sizes_.end() ? dialogWindow->sizeHint()
                                            : size->second.boundedTo(roomOnScreen(dialogWindow)));
  shown_.emplace_back(dialogWindow);
  dialogWindow->show();
  if (!isClosed) loop.exec(QEventLoop::DialogExec);
  dialog.close();  // the application may have been quit
  shown_.pop_back();
  if (!dialogWindow) return;
  sizes_[dialog.name()] = dialogWindow->size();
  const std::exception_ptr failure = dialogWindow->failure();
  delete dialogWindow;
  returnFocus();
  if (failure) std::rethrow_exception(failure);
}

MessageAnswer QtToolkit::messageBox(const MessageBox& box) {
  QMessageBox messageBox(iconOf(box.icon), toQt(box.title), linesToQt(box.text),
                         buttonsOf(box.buttons), window());
  messageBox.setTextFormat(Qt::PlainText);
  messageBox.setEscapeButton(wayOut(box.buttons));
  makeRoomForTitle(messageBox);
  const int button = messageBox.exec();
  returnFocus();
  // Without an answer the application has been quit.
  return answerOf(button > 0 ? button : wayOut(box.buttons));
}

std::optional<std::string> QtToolkit::chooseFileToOpen(const FileChoice& choice) {
  return chooseFile(choice, false);
}

std::optional<std::string> QtToolkit::chooseFileToSave(const FileChoice& choice) {
  return chooseFile(choice, true);
}

std::optional<std::string> QtToolkit::chooseFile(const FileChoice& choice, bool toSave) {
  QFileDialog dialog(window(), toQt(choice.title));
  if (QApplication::platformName() == QLatin1String("offscreen")) {
    dialog.setOption(QFileDialog::DontUseNativeDialog);
  }
  dialog.setAcceptMode(toSave ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  dialog.setFileMode(toSave ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
  const QString folder = choice.folder.empty() ? lastFolder_ : toQt(choice.folder);
  dialog.setDirectory(folder.isEmpty() ? QDir::currentPath() : folder);
  const QStringList filters = nameFilters(choice.filter);
  if (!filters.isEmpty()) {
    dialog.setNameFilters(filters);
    if (toSave) {
      dialog.setDefaultSuffix(extensionOf(filters.front()));
      QObject::connect(
          &dialog, &QFileDialog::filterSelected, &dialog,
          [&dialog](const QString& filter) { dialog.setDefaultSuffix(extensionOf(filter)); });
    }
  }
  if (!choice.fileName.empty()) dialog.selectFile(toQt(choice.fileName));
  const bool isChosen = dialog.exec() == QDialog::Accepted && !dialog.selectedFiles().isEmpty();
  returnFocus();
  if (!isChosen) return std::nullopt;
  lastFolder_ = dialog.directory().absolutePath();
  return fromQt(dialog.selectedFiles().front());
}

void QtToolkit::checkpoint() {
  if (sinceEvents_.isValid() && sinceEvents_.elapsed() < kBetweenEvents) return;
  if (QCoreApplication::instance() == nullptr) return;
  QCoreApplication::processEvents();
  sinceEvents_.start();
}

std::string QtToolkit::clipboardText() {
  return fromQt(QGuiApplication::clipboard()->text());
}

void QtToolkit::setClipboardText(const std::string& text) {
  QGuiApplication::clipboard()->setText(toQt(text));
}

bool QtToolkit::openDocument(const std::string& path, const MessageBox& failure) {
  if (const auto opener = DocumentOpener::start(path)) {
    documents_.add(*opener, failure);
    return true;
  }
  messageBox(failure);
  return false;
}

void QtToolkit::beep() {
  QApplication::beep();
}

}  // namespace tamrikon
