// The text files that the program writes and reads, with the rule of every file operation: a
// failing step goes to the file error dialog, whose answer repeats it, skips it or gives up.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "platform/code_page.h"
#include "platform/file_system.h"

namespace tamrikon {

/// What the answer to a file error asks for.
enum class FileErrorAnswer { repeat = 0, goOn = 1, giveUp = 2, fail = 3 };

/// Shows the file error dialog. The upper layers implement it.
class FileErrorReporter {
 public:
  virtual ~FileErrorReporter() = default;

  /// `verb` is "reading" or "saving".
  virtual FileErrorAnswer reportFileError(const std::string& path, std::string_view verb,
                                          FileError error) = 0;

  /// The same for what the error's own message can't tell: `what` is a sentence about it.
  virtual FileErrorAnswer reportFault(const std::string& path, std::string_view verb,
                                      FileError error, const std::string& what) {
    static_cast<void>(what);
    return reportFileError(path, verb, error);
  }
};

class TextFiles {
 public:
  /// Both must outlive this object.
  TextFiles(FileSystem& files, FileErrorReporter& reporter) : files_(files), reporter_(reporter) {}

  /// The page in which files are written, and read unless they are UTF-8; 1252 at first.
  void setCodePage(const CodePage& page) { page_ = &page; }
  const CodePage& codePage() const { return *page_; }

  /// Replaces or creates the file. Every CR of `text` is written as CR LF.
  /// 0 for success, 1 if the user gave up at the dialog, 2 for any other failure. With `silent`
  /// there is no dialog.
  int writeTextFile(const std::string& path, std::string_view text, bool silent);

  /// Whether the last file that writeTextFile wrote had other bytes before, or wasn't there.
  bool changedFile() const { return changedFile_; }

  /// The same for a file of which nothing may be lost: a failure leaves the old one, and a text
  /// that the page can't hold, or would be read as another one, is written as UTF-8.
  int replaceTextFile(const std::string& path, std::string_view text, bool silent);

  /// As writeTextFile, at the end of the file.
  int appendTextFile(const std::string& path, std::string_view text, bool silent);

  /// Reads the whole file, decoded, its line ends as they are.
  /// 0 for success, 2 if the user gave up at the dialog, 3 for any other failure.
  int readTextFile(const std::string& path, bool silent, std::string& text);

  /// Asks what to do about a failing step: `fail` at once if `silent` is set.
  /// `what` is a sentence about the error, if there is more to tell than its kind.
  FileErrorAnswer ask(const std::string& path, std::string_view verb, FileError error, bool silent,
                      const std::string& what = {});

  FileSystem& files() { return files_; }

 private:
  void breakLines(std::string_view text);
  void encode();
  int put(const std::function<FileError()>& write, const std::string& path, bool silent);

  FileSystem& files_;
  FileErrorReporter& reporter_;
  const CodePage* page_ = CodePage::find(1252);
  std::string bytes_;  // of the file in work; kept for the next one, as pages come by thousands
  bool isAscii_ = true;
  bool changedFile_ = false;
};

}  // namespace tamrikon
