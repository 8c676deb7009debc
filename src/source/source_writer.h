// Composes the bytes of a source file line by line.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/line_reader.h"
#include "platform/code_page.h"
#include "platform/text_decoding.h"
#include "source/source_records.h"

namespace tamrikon {

/// A character that stands in the way of a save.
struct LackingCharacter {
  char32_t codePoint = 0;
  int line =
      0;  // in the lines that the IDE shows; one with a hidden attribute behind it, 0: the head
  int column = 0;  // in characters from 1; 0 in a hidden attribute
};

/// How a source file was read, and so is written.
struct SourceFormat {
  const CodePage& page;  // for bytes that aren't UTF-8
  TextEncoding encoding = TextEncoding::codePage;
  LineEnd newLineEnd = LineEnd::crLf;  // of lines that have none of their own
};

class SourceWriter {
 public:
  /// `raw` is the bytes that were read, where encoding the text again might give others; otherwise
  /// empty. It must outlive the writer.
  SourceWriter(const SourceFormat& format, std::string_view raw, std::size_t expectedSize);

  /// Adds a piece of one or more physical lines. False if the page lacks a character of it.
  bool add(std::string_view text, std::uint32_t origin, LineEnd end);

  std::string finish();

  /// After add() has failed: the character, and its column in its line.
  const LackingCharacter& lacking() const { return lacking_; }

 private:
  void startLine();
  void endLine(LineEnd end);
  bool addLine(std::string_view text, std::uint32_t origin);

  SourceFormat format_;
  std::string bytes_;
  std::vector<std::string_view> rawLines_;
  bool hasRaw_;
  LineEnd pendingEnd_ = LineEnd::none;
  bool isLineEmpty_ = false;
  int line_ = 0;
  LackingCharacter lacking_;
};

}  // namespace tamrikon
