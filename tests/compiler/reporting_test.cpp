#include <gtest/gtest.h>

#include <tuple>

#include "compiler/file_error_dialog.h"
#include "compiler/session.h"
#include "compiler/store.h"
#include "support/scripted_toolkit.h"
#include "support/temp_folder.h"

namespace tamrikon {
namespace {

using test::ScriptedToolkit;

TEST(ProgressLog, LeavesOutAWarningThatRepeatsTheMessageBefore) {
  ScriptedToolkit toolkit;
  Session session(toolkit, nativeFileSystem(), nativeProcessServices(), "/data");
  for (const char* text :
       {"Warning: a", "Warning: a", "b", "b", "Warning: a", "WARNING: c", "WARNING: c"}) {
    session.log.logMessage(text);
  }
  EXPECT_EQ(session.progressDlg.Text1.text(),
            "Warning: a\r\nb\r\nb\r\nWarning: a\r\nWARNING: c\r\nWARNING: c\r\n");
}

TEST(FileErrorDialog, AsksAndStopsTheCompileOnAGiveUp) {
  using Case = std::tuple<FileError, MessageAnswer, FileErrorAnswer, bool>;
  for (const auto& [error, answer, expected, cancels] :
       {Case{FileError::permissionDenied, MessageAnswer::retry, FileErrorAnswer::repeat, false},
        Case{FileError::diskFull, MessageAnswer::yes, FileErrorAnswer::repeat, false},
        Case{FileError::diskFull, MessageAnswer::no, FileErrorAnswer::giveUp, true},
        Case{FileError::fileNotFound, MessageAnswer::ignore, FileErrorAnswer::goOn, false},
        Case{FileError::fileNotFound, MessageAnswer::cancel, FileErrorAnswer::giveUp, true}}) {
    ScriptedToolkit toolkit;
    toolkit.answers = {answer};
    bool cancelRequested = false;
    FileErrorDialog dialog(toolkit, cancelRequested);
    EXPECT_EQ(dialog.reportFileError("C:\\a.txt", "saving", error), expected);
    EXPECT_EQ(cancelRequested, cancels);
    EXPECT_EQ(toolkit.boxes.front().title, "Error saving C:\\a.txt file");
    EXPECT_EQ(toolkit.boxes.front().icon, MessageIcon::exclamation);
  }
}

TEST(TextFiles, RepeatsAFailingStepAndWritesEachCrAsCrLf) {
  const test::TempFolder folder;
  ScriptedToolkit toolkit;
  bool cancelRequested = false;
  FileErrorDialog dialog(toolkit, cancelRequested);
  TextFiles files(nativeFileSystem(), dialog);
  const std::string path = folder / "out/a.txt";
  EXPECT_EQ(files.writeTextFile(path, "x", true), 2);
  EXPECT_TRUE(toolkit.boxes.empty());
  EXPECT_EQ(files.writeTextFile(path, "x", false), 1);
  EXPECT_TRUE(cancelRequested);
  EXPECT_EQ(toolkit.boxes.front().text, "That path doesn't exist.");
  folder.put("out/other", "");
  EXPECT_EQ(files.appendTextFile(path, "one\rtw\xC3\xB6", false), 0);
  EXPECT_EQ(files.appendTextFile(path, "\r\xE2\x88\x91", false), 0);
  EXPECT_EQ(folder.get("out/a.txt"), "one\r\ntw\xF6\r\n?");
}

}  // namespace
}  // namespace tamrikon
