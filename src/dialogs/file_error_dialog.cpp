#include "dialogs/file_error_dialog.h"

namespace tamrikon {
namespace {

std::string messageFor(FileError error) {
  switch (error) {
    case FileError::badFileName:
    case FileError::badFileNameOrNumber: return "That filename is illegal.";
    case FileError::badFileMode: return "Can't open your file for that type of access.";
    case FileError::alreadyOpen: return "This file is already open.";
    case FileError::deviceIo: return "Internal disk error.";
    case FileError::diskFull: return "Disk is full. Continue?";
    case FileError::pastEndOfFile:
      return "This file has a nonstandard end-of-file marker, or an attempt was made to read "
             "beyond the end-of-file marker.";
    case FileError::deviceUnavailable: return "That device appears unavailable.";
    case FileError::permissionDenied: return "Permission denied. The file may be read only.";
    case FileError::diskNotReady: return "Insert a disk in the drive and close the door.";
    case FileError::pathNotFound: return "That path doesn't exist.";
    default: return "Unrecognized file error.";
  }
}

}  // namespace

FileErrorAnswer FileErrorDialog::reportFileError(const std::string& path, std::string_view verb,
                                                 FileError error) {
  return reportFault(path, verb, error, {});
}

FileErrorAnswer FileErrorDialog::reportFault(const std::string& path, std::string_view verb,
                                             FileError error, const std::string& what) {
  const MessageButtons buttons =
      error == FileError::diskFull ? MessageButtons::yesNoCancel : MessageButtons::retryCancel;
  const std::string title = "Error " + std::string(verb) + " " + path + " file";
  const std::string message = messageFor(error) + (what.empty() ? "" : " " + what);
  switch (prompter_.messageBox({title, message, buttons})) {
    case MessageAnswer::ok:
    case MessageAnswer::retry:
    case MessageAnswer::yes: return FileErrorAnswer::repeat;
    case MessageAnswer::ignore: return FileErrorAnswer::goOn;
    case MessageAnswer::cancel:
    case MessageAnswer::abort:
    case MessageAnswer::no: break;
  }
  return FileErrorAnswer::giveUp;
}

}  // namespace tamrikon
