// The question that a failed file operation asks.
#pragma once

#include "platform/text_files.h"
#include "toolkit/prompter.h"

namespace tamrikon {

class FileErrorDialog final : public FileErrorReporter {
 public:
  /// `prompter` must outlive this object.
  explicit FileErrorDialog(Prompter& prompter) : prompter_(prompter) {}

  FileErrorAnswer reportFileError(const std::string& path, std::string_view verb,
                                  FileError error) override;
  FileErrorAnswer reportFault(const std::string& path, std::string_view verb, FileError error,
                              const std::string& what) override;

 private:
  Prompter& prompter_;
};

}  // namespace tamrikon
