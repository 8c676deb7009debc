// The dialog that a failed file operation shows. An answer that gives up stops the compile.
#pragma once

#include "compiler/user_interface.h"
#include "platform/text_files.h"

namespace tamrikon {

class FileErrorDialog final : public FileErrorReporter {
 public:
  /// Both must outlive this object; `cancelRequested` is set by an answer that gives up.
  FileErrorDialog(UserInterface& ui, bool& cancelRequested)
      : ui_(ui), cancelRequested_(cancelRequested) {}

  FileErrorAnswer reportFileError(const std::string& path, std::string_view verb,
                                  FileError error) override;

 private:
  UserInterface& ui_;
  bool& cancelRequested_;
};

}  // namespace tamrikon
