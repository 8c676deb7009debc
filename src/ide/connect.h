// The commands that a user gives in an IDE, and what they need to live on between two of them.
#pragma once

#include <memory>
#include <vector>

#include "compiler/session.h"
#include "ide/ide.h"
#include "settings/options/frm_add_in.h"
#include "settings/options/options_owner.h"

namespace tamrikon {

class connect final : public OptionsOwner {
 public:
  /// `session` must outlive this object.
  explicit connect(Session& session) : session_(session) {}
  ~connect() override;

  VBE* VBInstance = nullptr;
  bool FormDisplayed = false;  // the Options dialog is up

  /// Takes `ide` as the one to work in, until the next call; null leaves the IDE. The settings are
  /// those of its active project from now on.
  void setIde(VBE* ide);

  /// Runs the Options dialog and, if it asks for one, the compile after it. A step that fails is
  /// skipped.
  void Show();

  /// Closes the Options dialog.
  void Hide() override;

 private:
  void compileProject();
  void compileProjects();

  Session& session_;
  std::unique_ptr<frmAddIn> options_;
  std::unique_ptr<VBProjectsEvents> ProjectHandler;
};

}  // namespace tamrikon
