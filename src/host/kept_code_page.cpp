#include "host/kept_code_page.h"

#include <charconv>

#include "base/case_folding.h"
#include "base/paths.h"

namespace tamrikon {
namespace {

constexpr std::string_view kExtension = ".codepage";

std::string_view withoutWhiteSpace(std::string_view text) {
  constexpr std::string_view kWhiteSpace = " \t\r\n";
  const std::size_t start = text.find_first_not_of(kWhiteSpace);
  if (start == std::string_view::npos) return {};
  return text.substr(start, text.find_last_not_of(kWhiteSpace) - start + 1);
}

}  // namespace

std::string keptCodePagePath(const std::string& projectPath) {
  const std::size_t dot = projectPath.rfind('.');
  const bool isProject =
      dot != std::string::npos && equalIgnoringCase(projectPath.substr(dot), ".vbp");
  return projectPath.substr(0, isProject ? dot : projectPath.size()) + std::string(kExtension);
}

const CodePage* readKeptCodePage(FileSystem& files, const std::string& projectPath,
                                 const DiagnosticSink& warn) {
  const std::string path = keptCodePagePath(projectPath);
  if (!files.isFile(path)) return nullptr;
  std::string bytes;
  if (files.read(path, bytes) != FileError::none) {
    warn(unreadableFile(path));
    return nullptr;
  }
  const std::string_view text = withoutWhiteSpace(bytes);
  int number = 0;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
  const bool isNumber = result.ec == std::errc() && result.ptr == text.data() + text.size();
  const CodePage* page = isNumber ? CodePage::find(number) : nullptr;
  if (page == nullptr) {
    Diagnostic fault{Diagnostic::About::project, Severity::warning, "code-page-file",
                     path + " doesn't hold the number of a code page, such as 1251"};
    fault.place.file = path;
    warn(fault);
  }
  return page;
}

FileError keepCodePage(FileSystem& files, const std::string& projectPath, const CodePage& page) {
  return files.replaceAtomically(keptCodePagePath(projectPath),
                                 std::to_string(page.number()) + "\n");
}

}  // namespace tamrikon
