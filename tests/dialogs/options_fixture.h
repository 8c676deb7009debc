// The Options dialog over projects on disk, with somebody who opens it.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <utility>

#include "base/text.h"
#include "dialogs/frm_add_in.h"
#include "support/open_project.h"
#include "support/scripted_toolkit.h"
#include "support/temp_folder.h"
#include "support/test_session.h"

namespace tamrikon::test {

class OptionsFixture : public testing::Test {
 protected:
  OptionsFixture() {
    for (const char* name : {"Alpha.bas", "Beta.bas", "Gamma.bas", "Notes.txt"}) {
      folder_.put(name, "");
    }
    folder_.put("Shop.vbp",
                "Type=Exe\nName=\"Shop\"\nModule=Alpha; Alpha.bas\nRelatedDoc=Notes.txt\n"
                "Module=Beta; Beta.bas\nModule=Gamma; Gamma.bas\n");
    folder_.put("data/Templates/chm.tmkt",
                "$tamrik-description$\nfirst\nline\n$end-tamrik-description$\n");
    open("Shop.vbp");
  }

  void open(const std::string& project) {
    ide_ = openProject(folder_ / project);
    dialog_.VBInstance = ide_.get();
    session_.settingsFile.setDefaultSettings(*ide_);
  }

  /// Fills and shows the dialog with a tab in front; the script closes it.
  void show(const std::string& tab, const std::function<void(User&)>& script) {
    dialog_.fillValues();
    dialog_.tbsOptions.select(tab);
    toolkit_.onDialog("frmAddIn", script);
    dialog_.showModal();
  }

  /// The value of `key` in the settings file; of comModules, all names.
  std::string saved(const std::string& key) {
    std::string values;
    const std::string text = replaceAll(folder_.get("Shop.tamrik"), "\r\n", "\n");
    for (const std::string_view line : split(text, '\n')) {
      if (!line.starts_with(key + " = ")) continue;
      values += (values.empty() ? "" : ",") + std::string(line.substr(key.size() + 3));
    }
    return values;
  }

  struct Owner final : OptionsOwner {
    explicit Owner(frmAddIn& shown) : dialog(shown) { dialog.connect = this; }
    void Hide() override { dialog.close(); }
    frmAddIn& dialog;
  };

  TempFolder folder_;
  ScriptedToolkit toolkit_;
  TestSession session_{toolkit_, nativeProcessServices(), folder_ / "data"};
  frmAddIn dialog_{toolkit_, session_};
  Owner owner_{dialog_};
  std::unique_ptr<HostIde> ide_;
};

}  // namespace tamrikon::test
