// Finds the code page of a project, of which its files say nothing outright.
#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "platform/code_page.h"
#include "source/page_of_bytes.h"
#include "source/path_lookup.h"

namespace tamrikon {

/// What the bytes of source files tell.
struct CodePageEvidence {
  std::size_t charsetLines = 0;      // lines "Charset = N" in heads
  std::map<int, std::size_t> votes;  // those that stand for a code page, by its number
  std::size_t highBytes = 0;         // bytes above 0x7F
  std::size_t highBytesInRuns = 0;   // those beside another one
};

/// The evidence in one source file.
CodePageEvidence readCodePageEvidence(std::string_view bytes);

/// A file that a path in undecoded bytes names.
struct FoundPath {
  std::string path;                // absolute; empty if there is no such file
  const CodePage* page = nullptr;  // in which the path was found; null for an ASCII path
};

/// Decodes `path` in `preferred`, unless that is null, in UTF-8 and in the other code pages, until
/// a file is there.
FoundPath findInCodePages(PathLookup& lookup, std::string_view folder, std::string_view path,
                          const CodePage* preferred);

/// Gathers what the files of a project tell.
class CodePageGuess {
 public:
  void addPath(const FoundPath& found);

  /// `hasControls`: whether the component is a form, a control, a property page or a user document,
  /// whose fonts count.
  void addSource(const CodePageEvidence& evidence, bool hasControls);

  /// Adds what a file holds, the project's own or a source: the bytes themselves may tell.
  void addBytes(std::string_view bytes) { sample_.add(bytes); }

  /// The number of the page that paths or fonts name, or 0.
  int named() const;

  /// The number of the page that the bytes look like, or 0.
  int fromBytes() const { return sample_.page(); }

  const ByteSample& bytes() const { return sample_; }

  /// Whether there are bytes above 0x7F that aren't UTF-8.
  bool needsPage() const { return !sample_.empty(); }

 private:
  std::map<int, std::size_t> pathPages_;
  CodePageEvidence evidence_;
  ByteSample sample_;
};

}  // namespace tamrikon
