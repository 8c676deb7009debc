// Tamrikon's own entries in the workbench: its options in the Add-Ins menu, the comment editor in
// the pop-up menu of the code.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "compiler/session.h"
#include "ide/add_in_host.h"
#include "ide/connect.h"
#include "ide/events.h"
#include "platform/user_settings.h"
#include "workbench/renderer/qt_toolkit.h"

namespace tamrikon {

class WorkbenchWindow;

class TamrikonAddIn final : private AddInHost, private UserSettings {
 public:
  /// `window` must outlive the add-in. `dataFolder` is the folder of the program's data.
  TamrikonAddIn(WorkbenchWindow& window, std::string dataFolder);
  ~TamrikonAddIn() override;
  TamrikonAddIn(const TamrikonAddIn&) = delete;
  TamrikonAddIn& operator=(const TamrikonAddIn&) = delete;

  Session& session() { return session_; }

  /// What the two entries do.
  void showOptions() { connect_.Show(); }
  void editComment() { connect_.CodeMenuHandlerEditor_Click(); }

 private:
  VBE& application() override;
  Toolkit& toolkit() override { return toolkit_; }
  const CodePage& codePageOf(const VBProject& project) override;
  void asOneEdit(CodeModule& module, const std::function<void()>& edit) override;
  std::uint32_t buttonFaceColour() override;
  WindowProcedure setWindowProcedure(std::uintptr_t window, WindowProcedure procedure) override;

  std::string get(const std::string& section, const std::string& key,
                  const std::string& defaultValue) const override;
  bool set(const std::string& section, const std::string& key, const std::string& value) override;

  void addItem(const char* bar, const char* caption, std::function<void()> click);

  WorkbenchWindow& window_;
  QtToolkit toolkit_;
  Session session_;
  connect connect_;
  std::vector<std::unique_ptr<CommandBarEvents>> handlers_;
};

}  // namespace tamrikon
