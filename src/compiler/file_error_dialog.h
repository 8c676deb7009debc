// The dialog that a failed file operation shows. An answer that gives up stops the compile.
#pragma once

#include "platform/text_files.h"
#include "toolkit/toolkit.h"

namespace tamrikon {

class FileErrorDialog final : public FileErrorReporter {
 public:
  /// Both must outlive this object; `cancelRequested` is set by an answer that gives up.
  FileErrorDialog(Toolkit& toolkit, bool& cancelRequested)
      : toolkit_(toolkit), cancelRequested_(cancelRequested) {}

  FileErrorAnswer reportFileError(const std::string& path, std::string_view verb,
                                  FileError error) override;
  FileErrorAnswer reportFault(const std::string& path, std::string_view verb, FileError error,
                              const std::string& what) override;

 private:
  Toolkit& toolkit_;
  bool& cancelRequested_;
};

}  // namespace tamrikon
