// An IDE with two projects and the add-in for it.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "compiler/store.h"
#include "connect/connect.h"
#include "support/scripted_ide.h"
#include "support/scripted_toolkit.h"
#include "support/temp_folder.h"
#include "support/test_session.h"

namespace tamrikon::test {

class ConnectTest : public testing::Test {
 protected:
  struct AddIn {
    AddIn(ScriptedToolkit& toolkit, ScriptedIde& ide)
        : session(toolkit), self(toolkit, session, ide, ide) {
      self.progressDlg.run.runsPrograms = false;
    }
    TestSession session;
    connect self;
  };

  ConnectTest() {
    folder_.put("t/own.tmkt",
                "$MEMBER-EXT$ .m\n$PROJECT-EXT$ .p\n$tamrik-exec-after$\n"
                "$end-tamrik-exec-after$\n");
    for (const char* name : {"One", "Two"}) {
      const std::string text(name);
      folder_.put("C" + text + ".cls", "Public Sub Fill()\nEnd Sub\n");
      folder_.put(text + ".vbp", "Type=Exe\nName=\"" + text + "\"\nRelatedDoc=notes.txt\nClass=C" +
                                     text + "; C" + text + ".cls\n");
      folder_.put(text + ".tamrik", "#Tamrikon Project Settings#\noutputPath = " + folder_.path() +
                                        "/out" + text + "\ntemplateFolder = " + folder_.path() +
                                        "/t\ntemplatePath = own.tmkt\ncomModules = C" + text +
                                        "\n");
    }
    makeAddIn();
  }

  void makeAddIn() {
    addIn_ = std::make_shared<AddIn>(toolkit_, *ide_);
    addIn_->self.owner = addIn_;
  }

  void open(const std::string& group) { ide_->open(folder_.put("g.vbg", "VBGROUP 5.0\n" + group)); }
  void openBoth() { open("StartupProject=One.vbp\nProject=Two.vbp\n"); }
  void connectIn(ConnectMode mode) { addIn_->self.AddinInstance_OnConnection(*ide_, mode); }
  void disconnect() { addIn_->self.AddinInstance_OnDisconnection(RemoveMode::userClosed); }

  /// What the user does in the next Options dialog.
  void onOptions(const std::function<void(User&, frmAddIn&)>& steps) {
    toolkit_.onDialog("frmAddIn",
                      [steps](User& user) { steps(user, dynamic_cast<frmAddIn&>(user.dialog())); });
  }
  void closeOptions() {
    onOptions([](User& user, frmAddIn& dialog) { user.click(dialog.cmdCancel); });
  }

  CodePane& paneOf(int project) {
    return ide_->project->VBProjects()
        .Item(project)
        .VBComponents()
        .Item(2)
        .CodeModule()
        ->CodePane();
  }

  TempFolder folder_;
  ScriptedToolkit toolkit_;
  std::unique_ptr<ScriptedIde> ide_ = std::make_unique<ScriptedIde>(
      toolkit_, std::vector<std::string>{"Menu Bar", "Standard", "Add-Ins", "Code Window"});
  std::shared_ptr<AddIn> addIn_;
};

}  // namespace tamrikon::test
