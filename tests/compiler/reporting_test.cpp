#include <gtest/gtest.h>

#include "compiler/file_error_dialog.h"
#include "compiler/progress_log.h"
#include "support/recording_ui.h"
#include "support/temp_folder.h"

namespace tamrikon {
namespace {

using test::RecordingUi;
using Messages = std::vector<std::string>;

TEST(ProgressLog, LeavesOutAWarningThatRepeatsTheMessageBefore) {
  RecordingUi ui;
  ProgressLog log(ui);
  for (const char* text :
       {"Warning: a", "Warning: a", "b", "b", "Warning: a", "WARNING: c", "WARNING: c"}) {
    log.logMessage(text);
  }
  EXPECT_EQ(ui.messages,
            (Messages{"Warning: a", "b", "b", "Warning: a", "WARNING: c", "WARNING: c"}));
  log.ShowProgress("Module1", "Foo");
  log.ShowProgress("contents...", "");
  EXPECT_EQ(ui.statusLines, (Messages{"Compiling: Module1.Foo", "Compiling: contents..."}));
}

TEST(FileErrorDialog, AsksAndStopsTheCompileOnAGiveUp) {
  struct Case {
    FileError error;
    MessageAnswer answer;
    FileErrorAnswer expected;
    bool cancels;
  };
  for (const Case& c :
       {Case{FileError::permissionDenied, MessageAnswer::retry, FileErrorAnswer::repeat, false},
        Case{FileError::diskFull, MessageAnswer::yes, FileErrorAnswer::repeat, false},
        Case{FileError::diskFull, MessageAnswer::no, FileErrorAnswer::giveUp, true},
        Case{FileError::fileNotFound, MessageAnswer::ignore, FileErrorAnswer::goOn, false},
        Case{FileError::fileNotFound, MessageAnswer::cancel, FileErrorAnswer::giveUp, true}}) {
    RecordingUi ui;
    ui.answers = {c.answer};
    bool cancelRequested = false;
    FileErrorDialog dialog(ui, cancelRequested);
    EXPECT_EQ(dialog.reportFileError("C:\\a.txt", "saving", c.error), c.expected);
    EXPECT_EQ(cancelRequested, c.cancels);
    EXPECT_EQ(ui.boxes.front().rfind("Error saving C:\\a.txt file: ", 0), 0U);
  }
}

TEST(TextFiles, RepeatsAFailingStepAndWritesEachCrAsCrLf) {
  const test::TempFolder folder;
  RecordingUi ui;
  bool cancelRequested = false;
  FileErrorDialog dialog(ui, cancelRequested);
  TextFiles files(nativeFileSystem(), dialog);
  const std::string path = folder / "out/a.txt";
  EXPECT_EQ(files.writeTextFile(path, "x", true), 2);
  EXPECT_TRUE(ui.boxes.empty());
  EXPECT_EQ(files.writeTextFile(path, "x", false), 1);
  EXPECT_TRUE(cancelRequested);
  EXPECT_EQ(ui.boxes, (Messages{"Error saving " + path + " file: That path doesn't exist."}));
  folder.put("out/other", "");
  EXPECT_EQ(files.appendTextFile(path, "one\rtw\xC3\xB6", false), 0);
  EXPECT_EQ(files.appendTextFile(path, "\r\xE2\x88\x91", false), 0);
  EXPECT_EQ(folder.get("out/a.txt"), "one\r\ntw\xF6\r\n?");
}

}  // namespace
}  // namespace tamrikon
