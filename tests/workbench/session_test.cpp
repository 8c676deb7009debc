// People at the workbench: each file of tests/data/workbench/sessions holds what is done, a line
// behind ">" with the answers behind "=", and below each what is seen to have changed. "^" stands
// for the caret, "<<" and ">>" are around what is selected.
#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QRegularExpression>
#include <QTreeWidget>
#include <map>

#include "base/text.h"
#include "workbench_fixture.h"

namespace tamrikon::test {
namespace {

namespace fs = std::filesystem;

using Files = std::map<std::string, std::string>;  // bytes by name

const fs::path kData = TAMRIKON_TEST_DATA "/workbench";

std::vector<std::string> sessions() {
  std::vector<std::string> names;
  for (const auto& file : fs::directory_iterator(kData / "sessions")) {
    names.push_back(file.path().stem().string());
  }
  return names;
}

/// What stands in a text between the lines that begin and end two texts alike.
QString difference(const std::string& before, const std::string& after) {
  QStringList was = toQt(before).split("\r\n");
  QStringList is = toQt(after).split("\r\n");
  while (!was.isEmpty() && !is.isEmpty() && was.front() == is.front()) {
    was.removeFirst();
    is.removeFirst();
  }
  while (!was.isEmpty() && !is.isEmpty() && was.back() == is.back()) {
    was.removeLast();
    is.removeLast();
  }
  QString lines;
  for (const QString& line : was) lines += "- " + line + '\n';
  for (const QString& line : is) lines += "+ " + line + '\n';
  return lines;
}

/// The text of an editor with the marks of its selection.
QString markedText(const CodeEditor& editor) {
  const QTextCursor cursor = editor.textCursor();
  QString text = editor.toPlainText();
  if (cursor.hasSelection()) {
    text.insert(cursor.selectionEnd(), ">>").insert(cursor.selectionStart(), "<<");
  } else {
    text.insert(cursor.position(), '^');
  }
  return "\n" + text;
}

class SessionTest : public WorkbenchTest, public testing::WithParamInterface<std::string> {
 protected:
  SessionTest() { projects_ = kData / "Shop"; }

  Files files() const {
    Files all;
    for (const auto& file : fs::recursive_directory_iterator(folder_ / "Projects")) {
      const std::string name = file.path().filename().string();
      if (file.is_regular_file()) all[name] = bytes(name);
    }
    return all;
  }

  /// Adds a line, or none, to files or to new ones in their places.
  void writeAsOthers(const QString& what, bool isNew) {
    const std::string line = fromQt(what.section(' ', 1));
    for (const QString& file : what.section(' ', 0, 0).split(',')) {
      const std::string name = fromQt(file);
      put(isNew ? "new" : name, bytes(name) + line + (line.empty() ? "" : "\r\n"));
      if (isNew) fs::rename(folder_ / "Projects/new", folder_ / ("Projects/" + name));
    }
    otherProgramWrote();
  }

  void listMenu(QMenu& menu) {
    emit menu.aboutToShow();
    for (const QAction* action : menu.actions()) {
      if (action->isSeparator()) continue;
      listed_ += action->text() + (action->isChecked() ? " *" : "");
      listed_ += action->isEnabled() ? "\n" : " (disabled)\n";
    }
  }

  void listTree(const QTreeWidgetItem& item, const QString& indent) {
    for (int i = 0; i < item.childCount(); ++i) {
      const QTreeWidgetItem& child = *item.child(i);
      const bool isOpen = child.isExpanded() || child.childCount() == 0;
      listed_ += indent + child.text(0) + (child.font(0).bold() ? " *" : "");
      if (!isOpen) listed_ += " +";
      if (child.toolTip(0).contains('\n')) listed_ += ": " + child.toolTip(0).replace('\n', " ");
      listed_ += '\n';
      if (isOpen) listTree(child, indent + "  ");
    }
  }

  template <typename Widget>
  Widget& find(const QString& name) const {
    auto* found = window_->findChild<Widget*>(name);
    if (found == nullptr) throw std::runtime_error("there is no " + fromQt(name));
    return *found;
  }

  /// Another program's work is done, and what it brings about waited for.
  void otherProgramWrote() {
    files_ = files();
    const auto isAsked = [this] { return prompts_.answers.empty(); };
    if (!isAsked()) {
      EXPECT_TRUE(QTest::qWaitFor(isAsked));  // noticed by itself
    } else {
      window_->diskChanges().check();
      QTest::qWait(400);
    }
  }

  std::map<QString, QString> seen() const {
    std::map<QString, QString> parts;
    parts["title"] = window_->isVisible() ? window_->windowTitle() : "(closed)";
    QStringList tabs;
    for (int i = 0; i < this->tabs().count(); ++i) tabs += this->tabs().tabText(i);
    parts["tabs"] = tabs.join(" | ");
    if (const CodeWindow* front = this->tabs().current()) {
      parts["text"] = markedText(front->editor());
      parts["procedure"] = front->findChild<QComboBox*>("procedureBox")->currentText();
    }
    const auto& status = find<QLabel>("findStatus");
    parts["found"] = status.isVisible() ? status.text() : "";
    const QWidget* focus = QApplication::focusWidget();
    parts["focus"] = focus != nullptr ? focus->objectName() : "";
    const auto* item = find<ProjectExplorer>("projectTree").currentItem();
    parts["explorer"] = item != nullptr ? item->text(0) : "";
    const auto& messages = find<MessageList>("messageList");
    parts["messages"] = "";
    for (int i = 0; i < messages.count() && messages.isVisible(); ++i) {
      parts["messages"] += '\n' + messages.item(i)->text();
    }
    parts["clipboard"] = QApplication::clipboard()->text().replace('\r', "\\r");
    return parts;
  }

  /// Everything that is otherwise than when it was last told.
  QString news() {
    QString told;
    std::map<QString, QString> now = seen();
    for (const auto& [part, text] : now) {
      if (text != seen_[part]) told += QString(part + ": " + text).replace('\n', "\n  | ") + '\n';
    }
    seen_ = std::move(now);
    Files written = files();
    for (const auto& [name, bytes] : written) {
      if (bytes != files_[name])
        told += "written: " + toQt(name) + '\n' + difference(files_[name], bytes);
    }
    files_ = std::move(written);
    for (const CodeWindow* window : tabs().windows())
      expectSame(window->editor(), window->module());
    return told;
  }

  /// Does one thing, and returns what the user was asked and what he sees then.
  QString run(const QString& line, const QStringList& answers) {
    prompts_.answers = {answers.begin(), answers.end()};
    prompts_.asked.clear();
    const QString command = line.section(' ', 0, 0);
    try {
      commands_.at(command)(line.section(' ', 1).replace("\\t", "\t"));
    } catch (const std::exception& failure) {
      return "fails: " + toQt(failure.what()) + '\n';
    }
    QApplication::processEvents();
    EXPECT_TRUE(prompts_.answers.empty()) << fromQt(line) << " asks nobody";
    prompts_.answers.clear();
    QString told;
    for (qsizetype i = 0; i < prompts_.asked.size(); ++i) {
      told += "? " + prompts_.asked[i].trimmed().replace('\n', "\n? ") + '\n';
      told += "= " + answers.value(i) + '\n';
    }
    told += std::exchange(listed_, "");
    static const QRegularExpression time(R"(\(\d+ \w+ \d+ [\d:]+\))");
    told += news();
    return told.remove(path("")).replace(time, "(then)");
  }

  CodeWindow& inFront() const {
    if (tabs().current() == nullptr) throw std::runtime_error("there is no code window");
    return *tabs().current();
  }
  static QWidget& focus() {
    if (QApplication::focusWidget() == nullptr) throw std::runtime_error("nothing has the focus");
    return *QApplication::focusWidget();
  }

  /// By the start of its title, such as "Stock - Cart".
  void showModule(const QString& title) const {
    for (int number = 1; number <= window_->ide()->VBProjects().Count(); ++number) {
      HostProject& project = window_->ide()->VBProjects().Item(number);
      for (int item = 1; item <= project.VBComponents().Count(); ++item) {
        HostModule* module = project.VBComponents().Item(item).CodeModule();
        if (module == nullptr || toQt(project.Name() + " - " + module->Name()) != title) continue;
        window_->showCode(*module);
        return;
      }
    }
    throw std::runtime_error("there is no such module");
  }

  void press(const QString& keys) {
    for (const QString& key : keys.split(' ')) {
      const QKeyCombination pressed = QKeySequence(key)[0];
      QTest::keyClick(&focus(), pressed.key(), pressed.keyboardModifiers());
    }
  }

  void choose(const QString& box, const QString& item) const {
    auto& list = *inFront().findChild<QComboBox*>(box);
    list.setCurrentText(item);
    emit list.activated(list.currentIndex());
  }

  void chooseItem(const std::string& bar, const std::string& caption) const {
    CommandBarControls& items = window_->screen().commandBars().Item(bar)->Controls();
    for (int number = 1; number <= items.Count(); ++number) {
      auto& item = dynamic_cast<QtControl&>(items.Item(number));
      if (item.Caption() == caption) return item.action()->trigger();
    }
    throw std::runtime_error("there is no such item");
  }

  void selectInExplorer(const QString& item) const {
    auto& tree = find<ProjectExplorer>("projectTree");
    tree.setCurrentItem(tree.findItems(item, Qt::MatchExactly | Qt::MatchRecursive).value(0));
  }

  using Command = std::function<void(const QString&)>;
  using Text = const QString&;
  const std::map<QString, Command> commands_ = {
      {"start", [this](Text) { start(); }},
      {"connect", [this](Text) { window_->connectAddIns(); }},
      {"open", [this](Text file) { window_->openProject(path(fromQt(file))); }},
      {"close", [this](Text) { window_->close(); }},
      {"start-another",
       [this](Text file) { WorkbenchWindow(options()).openProject(path(fromQt(file))); }},
      {"show", [this](Text title) { showModule(title); }},
      {"caret",
       [this](Text place) {
         const int line = place.section(':', 0, 0).toInt();
         const int column = place.section(':', 1).toInt();
         inFront().editor().setSelection({line, column, line, column});
       }},
      {"lines",
       [this](Text lines) {
         inFront().editor().setSelection(
             {lines.section('-', 0, 0).toInt(), 1, lines.section('-', 1).toInt(), 999});
       }},
      {"type", [](Text text) { QTest::keyClicks(&focus(), text); }},
      {"press", [this](Text keys) { press(keys); }},
      {"do", [this](Text action) { trigger(action.toUtf8()); }},
      {"click", [this](Text button) { find<QAbstractButton>(button).click(); }},
      {"focus", [this](Text widget) { find<QWidget>(widget).setFocus(); }},
      {"choose", [this](Text what) { choose(what.section(' ', 0, 0), what.section(' ', 1)); }},
      {"select", [this](Text item) { selectInExplorer(item); }},
      // By an add-in.
      {"insert",
       [this](Text what) {
         inFront().module().InsertLines(what.section(' ', 0, 0).toInt(),
                                        fromQt(what.section(' ', 1)));
       }},
      {"delete", [this](Text line) { inFront().module().DeleteLines(line.toInt(), 1); }},
      {"number",
       [this](Text module) { this->module(fromQt(module)).Parent().setHelpContextID(7); }},
      {"help",
       [this](Text file) { window_->ide()->VBProjects().Item(1).setHelpFile(fromQt(file)); }},
      {"item",
       [this](Text item) {
         chooseItem(fromQt(item.section('/', 0, 0)), fromQt(item.section('/', 1)));
       }},
      // By other programs.
      {"append", [this](Text what) { writeAsOthers(what, false); }},
      {"replace", [this](Text what) { writeAsOthers(what, true); }},
      {"remove",
       [this](Text file) {
         fs::remove(folder_ / ("Projects/" + fromQt(file)));
         otherProgramWrote();
       }},
      {"wait", [](Text milliseconds) { QTest::qWait(milliseconds.toInt()); }},
      {"menu", [this](Text name) { listMenu(find<QMenu>(name)); }},
      {"tree",
       [this](Text) { listTree(*find<ProjectExplorer>("projectTree").invisibleRootItem(), ""); }},
  };

  std::map<QString, QString> seen_;  // what was told last
  Files files_;
  QString listed_;
};

TEST_P(SessionTest, IsSeenAsItWas) {
  std::ifstream file(kData / "sessions" / (GetParam() + ".txt"));
  const std::string expected{std::istreambuf_iterator<char>(file), {}};
  QApplication::clipboard()->clear();
  news();
  const QStringList lines = toQt(expected).split('\n');
  QString told;
  for (qsizetype i = 0; i < lines.size(); ++i) {
    if (lines[i].isEmpty() || lines[i].startsWith('#')) told += lines[i] + '\n';
    if (!lines[i].startsWith("> ")) continue;
    QStringList answers;
    for (qsizetype next = i + 1; next < lines.size() && !lines[next].startsWith('>'); ++next) {
      if (lines[next].startsWith("= ")) answers += lines[next].mid(2);
    }
    told += lines[i] + '\n' + run(lines[i].mid(2), answers);
  }
  told.chop(1);
  EXPECT_EQ(fromQt(told), expected);
}

INSTANTIATE_TEST_SUITE_P(, SessionTest, testing::ValuesIn(sessions()),
                         [](const auto& tested) { return tested.param; });

}  // namespace
}  // namespace tamrikon::test
