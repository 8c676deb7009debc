// A source file in memory: its head, its visible lines, and the attribute lines that the IDE hides
// behind them. What isn't edited is saved byte for byte.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/line_reader.h"
#include "platform/code_page.h"
#include "source/edit_history.h"
#include "source/source_observers.h"
#include "source/source_records.h"
#include "source/source_writer.h"
#include "vb/shared_lines.h"

namespace tamrikon {

/// Line numbers count visible lines from 1. Callers keep them within lineCount(). Each operation
/// that changes something is one undo step, or a part of the group's.
class SourceFile {
 public:
  /// `page` is for bytes that aren't UTF-8. It must outlive the file.
  SourceFile(std::string bytes, const CodePage& page);
  SourceFile(const SourceFile&) = delete;
  SourceFile& operator=(const SourceFile&) = delete;

  /// Takes other bytes in place of all that it holds, in the same code page; the history is
  /// cleared.
  void reload(std::string bytes);

  int lineCount() const { return static_cast<int>(lines_->size()); }

  /// The visible lines. The views hold until the next edit.
  const std::vector<std::string_view>& lines() const { return *lines_; }

  /// The same for ever: their text is copied only if a line was edited since the file was read.
  SharedLines shareLines() const;

  /// `count` lines from `first` on, CR LF between them.
  std::string text(int first, int count) const;

  /// The class of the head's outermost block, such as "VB.Form"; empty without a block.
  std::string_view blockClass() const { return blockClass_; }

  /// Puts `text`, divided at its line ends, before `line`, which may be one past the last. Hidden
  /// lines stay behind the line that they follow; attribute lines in `text` become hidden too. Tabs
  /// in front of a line become blanks, here as in replaceLines and in the lines that are read.
  void insertLines(int line, std::string_view text);

  /// Deletes lines with the hidden lines behind them.
  void deleteLines(int first, int count);

  /// Puts `text`, divided as for insertLines, in place of `count` lines, as a person does who edits
  /// them: a line that is the same stays untouched, one that is changed in its place keeps its line
  /// end and the hidden lines behind it, and so do the parts of a line that is divided or joined.
  /// All lines of `text` are visible, also those that begin as attributes do.
  void replaceLines(int first, int count, std::string_view text, EditKind kind = EditKind::step);

  /// False if there is nothing to undo or redo.
  bool undo();
  bool redo();

  /// Its own operations for groups, the end of typing and what can be undone.
  EditHistory& history() { return history_; }
  SourceObservers& observers() { return observers_; }

  /// Grows with every edit of visible lines, and with all that may take attributes away.
  unsigned revision() const { return revision_; }

  // Attributes: each is one hidden line with the lines that continue it. They are known by a number
  // that stays as long as the revision.

  /// The numbers of the attributes behind visible line `line`; those of the head for line 0.
  const std::vector<std::uint32_t>& attributesBehind(int line) const;
  std::string_view attribute(std::uint32_t number) const { return attributes_[number].text; }
  void replaceAttribute(std::uint32_t number, std::string text, EditSubject::Value subject);

  /// Adds one behind visible line `line`, before those that stand there, or for line 0 at the end
  /// of the head. Returns its number.
  std::uint32_t addAttribute(int line, std::string text, EditSubject::Value subject);

  /// Whether it differs from what was read or saved last.
  bool isChanged() const { return history_.isChanged(); }
  void setSaved();

  /// The file's bytes, or nothing if its code page lacks a character that was put in. Attributes
  /// behind a line that an edit has made run on in the next one go behind the end of the statement.
  std::optional<std::string> bytes(LackingCharacter& lacking) const;

  /// What makes the file as it was read one that can't be understood, beginning with the line on
  /// disk; empty if nothing does. To write into such a file would harm it.
  std::string fault() const;

  const CodePage& page() const { return format_.page; }

 private:
  class SavedStateWatch;
  using Lines = std::vector<std::string_view>;

  void read(std::string bytes);
  void readLines(std::size_t attributesStart, std::size_t codeStart);
  std::uint32_t groupBehind(LineTail& tail);
  std::uint32_t newAttribute(const SourceAttribute& attribute);

  std::vector<SourceLine> replacement(int first, int count, std::string_view text, EditStep& step);
  void joinAttributes(LineTail& tail, const LineTail& joined, EditStep& step);
  void retype(EditStep& step, int line, std::string_view text);
  void insertNumbers(EditStep& step, std::uint32_t group, std::size_t index,
                     std::vector<std::uint32_t> numbers);
  void apply(EditStep& step, SourceChange change);
  void swap(LinesChange& change);
  void swap(GroupChange& change);
  void swap(AttributeChange& change);
  void tell(const SourceChange& change);
  bool runsOn(std::size_t index, bool ranOn) const;

  SourceFormat format_;
  std::shared_ptr<const std::string> text_;
  std::string raw_;             // the bytes that were read, where text_ might give others
  std::string_view headBlock_;  // what stands before the head's attributes
  LineEnd headBlockEnd_ = LineEnd::none;
  std::string_view blockClass_;
  std::shared_ptr<Lines> lines_ = std::make_shared<Lines>();
  bool isAsRead_ = true;         // all lines are views of text_, and others may share them
  std::vector<LineTail> tails_;  // beside lines_
  std::vector<SourceAttribute> attributes_;
  std::vector<std::vector<std::uint32_t>> groups_;  // of attributes; the first is that of the head
  EditHistory history_;
  SourceObservers observers_;
  unsigned revision_ = 0;
};

}  // namespace tamrikon
