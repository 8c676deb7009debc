// A sample dialog in a real window.
#pragma once

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QPlainTextEdit>

#include "workbench/renderer/sample_dialog.h"
#include "workbench/renderer/window_user.h"

namespace tamrikon::test {

struct RendererTest : testing::Test {
  QtToolkit toolkit;
  SampleDialog dialog{toolkit};
  WindowUser user;

  /// The script begins with the first control in focus and nothing told.
  void show(const std::function<void()>& script) {
    dialog.show([&] {
      dialog.told();
      script();
    });
  }
  void showLists(const std::function<void()>& script) {
    dialog.Tabs.select("list");
    show(script);
  }
};

}  // namespace tamrikon::test
