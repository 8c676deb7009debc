// The steps by which a source file was edited, each with what it takes to undo it.
#pragma once

#include <bitset>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "source/source_records.h"

namespace tamrikon {

/// Whether an edit is an undo step of its own, or a keystroke, which joins the step before it if
/// that was typing on the same line.
enum class EditKind { step, typing };

// A change holds what isn't in the file: swapping puts that in and takes out what stood there, so
// that the same change serves to undo and to redo.

/// `count` visible lines from `first` on, against `other`.
struct LinesChange {
  int first = 0;
  int count = 0;
  std::vector<SourceLine> other;
};

/// `count` attribute numbers of a group from `index` on, against `other`.
struct GroupChange {
  std::uint32_t group = 0;
  std::size_t index = 0;
  std::size_t count = 0;
  std::vector<std::uint32_t> other;
};

struct AttributeChange {
  std::uint32_t number = 0;
  SourceAttribute other;
};

using SourceChange = std::variant<LinesChange, GroupChange, AttributeChange>;

/// What an edit is about: the lines that a person sees, or one of the attributes behind them.
struct EditSubject {
  enum Value : std::size_t { code, description, helpContextId };
};
using EditSubjects = std::bitset<3>;

struct EditStep {
  std::vector<SourceChange> changes;  // in the order in which they were made
  EditSubjects subjects;
  std::vector<std::unique_ptr<const std::string>> texts;
  int typedLine = 0;  // the line that all of the step was typed on; 0 for any other step

  /// Keeps a text that the step puts into the file; the view holds as long as the step.
  std::string_view keep(std::string text);
};

/// Owns the texts that edits have put into the file. All steps stay, so that each text that stands
/// in the file has its owner; only steps that were undone go, when another edit is made.
class EditHistory {
 public:
  /// Neither is possible within a group.
  bool canUndo() const { return depth_ == 0 && !done_.empty(); }
  bool canRedo() const { return depth_ == 0 && !undone_.empty(); }

  /// Whether the file differs from what was read or saved last.
  bool isChanged() const { return saved_ != done_.size(); }
  void setSaved();

  /// The next keystroke begins a step of its own.
  void endTyping() { isTypingEnded_ = true; }

  /// All edits up to the end of the outermost group are one step; a save divides it.
  void beginGroup();
  void endGroup() { --depth_; }

  /// Forgets all steps; the file counts as saved.
  void clear();

  /// What the steps are about that lie between the file and what was read or saved last.
  EditSubjects changedSubjects() const;

  /// The step for the edit that is about to be made. `typedLine` is 0 unless a keystroke makes it.
  EditStep& beginEdit(EditSubject::Value subject, int typedLine = 0);

  /// The step that a keystroke on `line` joins, or null.
  EditStep* typingOn(int line);

  /// The step whose changes are to be swapped, the last one first; null if there is none.
  EditStep* undo();

  /// The same, the first change first.
  EditStep* redo();

 private:
  static constexpr std::size_t kNever = SIZE_MAX;

  EditStep& openStep(int typedLine);

  std::vector<EditStep> done_;
  std::vector<EditStep> undone_;  // the one to redo first is the last
  std::size_t saved_ = 0;  // how many steps were done at the last save; kNever if one is gone
  int depth_ = 0;
  bool isGroupStepOpen_ = false;
  bool isTypingEnded_ = false;
};

}  // namespace tamrikon
