// A workbench with a copy of the example projects, and somebody who answers its questions.
#pragma once

#include <gtest/gtest.h>

#include <QAction>
#include <QTest>
#include <QTextBlock>
#include <deque>
#include <filesystem>
#include <memory>
#include <string>

#include "support/temp_folder.h"
#include "toolkit_qt/qt_text.h"
#include "workbench/block_text.h"
#include "workbench/workbench_window.h"

namespace tamrikon::test {

/// Gives the answers that it was told, in their order; whatever else is asked is a failure.
struct ScriptedPrompts final : Prompts {
  ~ScriptedPrompts() override { EXPECT_TRUE(answers.empty()) << "was never asked"; }

  int ask(const Question& question) override {
    asked += question.text + '\n' + question.details;
    if (answers.empty()) {
      ADD_FAILURE() << "nobody answers: " << fromQt(asked.last());
      return question.refused;
    }
    const QString answer = answers.front();
    answers.pop_front();
    for (int i = 0; i < question.answers.size(); ++i) {
      if (QString(question.answers[i]).remove('&') == answer) return i;
    }
    ADD_FAILURE() << fromQt(answer) << " is no answer to: " << fromQt(asked.last());
    return question.refused;
  }
  QString chooseProject(const QString&) override { return project; }
  int chooseLine(int, int) override { return line; }

  std::deque<QString> answers;
  QStringList asked;  // text, line end, details
  QString project;
  int line = 0;
};

class WorkbenchTest : public testing::Test {
 protected:
  void SetUp() override {
    qputenv("XDG_CONFIG_HOME", QByteArray::fromStdString(folder_ / "config"));
    qputenv("XDG_STATE_HOME", QByteArray::fromStdString(folder_ / "state"));
    std::filesystem::copy(projects_, folder_ / "Projects",
                          std::filesystem::copy_options::recursive);
    start();
  }

  WorkbenchOptions options() { return {toQt(folder_ / "settings.ini"), &prompts_}; }

  /// Starts the program anew.
  void start() {
    window_.reset();
    window_ = std::make_unique<WorkbenchWindow>(options());
    window_->show();
    window_->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(window_.get()));
  }

  QString path(const std::string& name) const { return toQt(folder_ / ("Projects/" + name)); }
  std::string bytes(const std::string& name) const { return folder_.get("Projects/" + name); }
  void put(const std::string& name, const std::string& bytes) {
    folder_.put("Projects/" + name, bytes);
  }

  void open(const std::string& name = "Inventory.vbg") {
    ASSERT_TRUE(window_->openProject(path(name)));
  }
  HostModule& module(const std::string& name) const {
    for (HostModule* module : modulesOf(*window_->ide())) {
      if (module->Name() == name) return *module;
    }
    throw IdeError("no module " + name);
  }
  CodeEditor& show(const std::string& name) { return window_->showCode(module(name)).editor(); }
  CodeTabs& tabs() const { return *window_->findChild<CodeTabs*>(); }
  void trigger(const char* action) const { window_->findChild<QAction*>(action)->trigger(); }

  std::filesystem::path projects_ = TAMRIKON_EXAMPLES "/Inventory";  // of which it gets copies
  TempFolder folder_;
  ScriptedPrompts prompts_;
  std::unique_ptr<WorkbenchWindow> window_;
};

/// What the editor shows must be what the module holds.
inline void expectSame(const CodeEditor& editor, const HostModule& module) {
  QStringList blocks;
  for (QTextBlock block = editor.document()->begin(); block.isValid(); block = block.next()) {
    blocks += block.text();
  }
  const int count = module.CountOfLines();
  const QStringList lines = count == 0 ? QStringList{QString()} : toBlocks(module.Lines(1, count));
  EXPECT_EQ(fromQt(blocks.join('\n')), fromQt(lines.join('\n')));
}

}  // namespace tamrikon::test
