#include "platform/text_files.h"

#include "platform/line_breaks.h"
#include "platform/text_decoding.h"

namespace tamrikon {

FileErrorAnswer TextFiles::ask(const std::string& path, std::string_view verb, FileError error,
                               bool silent, const std::string& what) {
  return silent ? FileErrorAnswer::fail : reporter_.reportFault(path, verb, error, what);
}

void TextFiles::breakLines(std::string_view text) {
  bytes_.clear();
  isAscii_ = appendWithLineBreaks(bytes_, text);
}

void TextFiles::encode() {
  if (!isAscii_) bytes_ = page_->encode(bytes_);
}

int TextFiles::put(const std::function<FileError()>& write, const std::string& path, bool silent) {
  for (;;) {
    const FileError error = write();
    if (error == FileError::none) return 0;
    switch (ask(path, "saving", error, silent)) {
      case FileErrorAnswer::repeat: break;
      case FileErrorAnswer::goOn: return 0;
      case FileErrorAnswer::giveUp: return 1;
      case FileErrorAnswer::fail: return 2;
    }
  }
}

int TextFiles::writeTextFile(const std::string& path, std::string_view text, bool silent) {
  breakLines(text);
  encode();
  return put([&] { return files_.writeIfOther(path, bytes_, changedFile_); }, path, silent);
}

int TextFiles::replaceTextFile(const std::string& path, std::string_view text, bool silent) {
  breakLines(text);
  const std::string asUtf8 = bytes_;
  encode();
  if (decodeText(bytes_, *page_).text != asUtf8) bytes_ = asUtf8;
  return put([&] { return files_.replaceAtomically(path, bytes_); }, path, silent);
}

int TextFiles::appendTextFile(const std::string& path, std::string_view text, bool silent) {
  breakLines(text);
  encode();
  return put([&] { return files_.append(path, bytes_); }, path, silent);
}

int TextFiles::readTextFile(const std::string& path, bool silent, std::string& text) {
  text.clear();
  std::string bytes;
  for (;;) {
    const FileError error = files_.read(path, bytes);
    if (error == FileError::none) break;
    switch (ask(path, "reading", error, silent)) {
      case FileErrorAnswer::repeat: break;
      case FileErrorAnswer::goOn: return 0;
      case FileErrorAnswer::giveUp: return 2;
      case FileErrorAnswer::fail: return 3;
    }
  }
  text = decodeText(bytes, *page_).text;
  return 0;
}

}  // namespace tamrikon
