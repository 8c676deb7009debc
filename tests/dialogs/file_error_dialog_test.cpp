#include "dialogs/file_error_dialog.h"

#include <gtest/gtest.h>

#include <tuple>

#include "platform/text_files.h"
#include "support/scripted_toolkit.h"
#include "support/temp_folder.h"

namespace tamrikon {
namespace {

using test::ScriptedToolkit;

TEST(FileErrorDialog, AsksWhatToDo) {
  using Case = std::tuple<FileError, MessageAnswer, FileErrorAnswer>;
  for (const auto& [error, answer, expected] :
       {Case{FileError::permissionDenied, MessageAnswer::retry, FileErrorAnswer::repeat},
        Case{FileError::diskFull, MessageAnswer::yes, FileErrorAnswer::repeat},
        Case{FileError::diskFull, MessageAnswer::no, FileErrorAnswer::giveUp},
        Case{FileError::fileNotFound, MessageAnswer::ignore, FileErrorAnswer::goOn},
        Case{FileError::fileNotFound, MessageAnswer::cancel, FileErrorAnswer::giveUp}}) {
    ScriptedToolkit toolkit;
    toolkit.answers = {answer};
    FileErrorDialog dialog(toolkit);
    EXPECT_EQ(dialog.reportFileError("C:\\a.txt", "saving", error), expected);
    EXPECT_EQ(toolkit.boxes.front().title, "Error saving C:\\a.txt file");
    EXPECT_EQ(toolkit.boxes.front().icon, MessageIcon::exclamation);
  }
}

TEST(TextFiles, RepeatsAFailingStepAndWritesEachCrAsCrLf) {
  const test::TempFolder folder;
  ScriptedToolkit toolkit;
  FileErrorDialog dialog(toolkit);
  TextFiles files(nativeFileSystem(), dialog);
  const std::string path = folder / "out/a.txt";
  EXPECT_EQ(files.writeTextFile(path, "x", true), 2);
  EXPECT_TRUE(toolkit.boxes.empty());
  EXPECT_EQ(files.writeTextFile(path, "x", false), 1);
  EXPECT_EQ(toolkit.boxes.front().text, "That path doesn't exist.");
  folder.put("out/other", "");
  EXPECT_EQ(files.appendTextFile(path, "one\rtw\xC3\xB6", false), 0);
  EXPECT_EQ(files.appendTextFile(path, "\r\xE2\x88\x91", false), 0);
  EXPECT_EQ(folder.get("out/a.txt"), "one\r\ntw\xF6\r\n?");
}

}  // namespace
}  // namespace tamrikon
