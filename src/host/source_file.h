// A source file in memory: its head, its visible lines, and the attribute lines that the IDE hides
// behind them. What isn't edited is saved byte for byte.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "host/line_reader.h"
#include "platform/code_page.h"
#include "platform/text_decoding.h"

namespace tamrikon {

/// A character that stands in the way of a save.
struct LackingCharacter {
  int line = 0;  // in the file as it would have been written, its head included
  char32_t codePoint = 0;
};

/// Line numbers count visible lines from 1. Callers keep them within lineCount().
class SourceFile {
 public:
  /// `page` is for bytes that aren't UTF-8. It must outlive the file.
  SourceFile(std::string bytes, const CodePage& page);
  SourceFile(const SourceFile&) = delete;
  SourceFile& operator=(const SourceFile&) = delete;

  int lineCount() const { return static_cast<int>(lines_.size()); }

  /// The visible lines. The views hold as long as the file, also across edits.
  const std::vector<std::string_view>& lines() const { return lines_; }

  /// `count` lines from `first` on, CR LF between them.
  std::string text(int first, int count) const;

  /// The class of the head's outermost block, such as "VB.Form"; empty without a block.
  std::string_view blockClass() const { return blockClass_; }

  /// Puts `text`, divided at its line ends, before `line`, which may be one past the last. Hidden
  /// lines stay behind the line that they follow; attribute lines in `text` become hidden too.
  void insertLines(int line, std::string_view text);

  /// Deletes lines with the hidden lines behind them.
  void deleteLines(int first, int count);

  /// Grows with every edit of visible lines.
  unsigned revision() const { return revision_; }

  // Attributes: each is one hidden line with the lines that continue it. They are known by a number
  // that stays until visible lines are deleted.

  /// The numbers of the attributes behind visible line `line`; those of the head for line 0.
  const std::vector<std::uint32_t>& attributesBehind(int line) const;
  std::string_view attribute(std::uint32_t number) const { return attributes_[number].text; }
  void replaceAttribute(std::uint32_t number, std::string text);

  /// Adds one behind visible line `line`, before those that stand there, or for line 0 at the end
  /// of the head. Returns its number.
  std::uint32_t addAttribute(int line, std::string text);

  bool isChanged() const { return changed_; }
  void setSaved() { changed_ = false; }

  /// The file's bytes, or nothing if its code page lacks a character that was put in.
  std::optional<std::string> bytes(LackingCharacter& lacking) const;

  const CodePage& page() const { return page_; }

 private:
  class Writer;

  // `origin` is the number, from 0, of the line's first physical line in the file as it was read.
  static constexpr std::uint32_t kNew = UINT32_MAX;
  struct LineTail {
    std::uint32_t origin = kNew;
    std::uint32_t group = 0;  // into groups_; 0 for a line without attributes behind it
    LineEnd end = LineEnd::none;
  };
  struct Attribute {
    std::string_view text;  // with the line ends between its physical lines
    std::uint32_t origin = kNew;
    LineEnd end = LineEnd::none;
  };

  void readLines(std::size_t attributesStart, std::size_t codeStart);
  std::uint32_t groupBehind(LineTail& tail);
  std::uint32_t addAttributeTo(std::uint32_t group, const Attribute& attribute);
  std::string_view keep(std::string text);

  const CodePage& page_;
  TextEncoding encoding_ = TextEncoding::codePage;
  std::string text_;
  std::string raw_;  // the bytes that were read, where encoding text_ again might give others
  LineEnd newLineEnd_ = LineEnd::crLf;
  std::string_view headBlock_;  // what stands before the head's attributes
  LineEnd headBlockEnd_ = LineEnd::none;
  std::string_view blockClass_;
  std::vector<std::string_view> lines_;
  std::vector<LineTail> tails_;  // beside lines_
  std::vector<Attribute> attributes_;
  std::vector<std::vector<std::uint32_t>> groups_{1};  // the first is that of the head
  std::deque<std::string> edits_;                      // texts that didn't come from the file
  unsigned revision_ = 0;
  bool changed_ = false;
};

}  // namespace tamrikon
