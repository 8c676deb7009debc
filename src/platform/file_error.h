// The classic run-time file error numbers, by which file operations report.
#pragma once

namespace tamrikon {

/// 0 is success; the other values are the error numbers of Visual Basic's run time.
enum class FileError {
  none = 0,
  typeMismatch = 13,
  badFileName = 52,
  fileNotFound = 53,
  badFileMode = 54,
  alreadyOpen = 55,
  deviceIo = 57,
  diskFull = 61,
  pastEndOfFile = 62,
  badFileNameOrNumber = 64,
  deviceUnavailable = 68,
  permissionDenied = 70,
  diskNotReady = 71,
  pathFileAccess = 75,
  pathNotFound = 76,
  keyExists = 457,
};

}  // namespace tamrikon
