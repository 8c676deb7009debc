#include "source/edit_history.h"

#include <utility>

namespace tamrikon {

std::string_view EditStep::keep(std::string text) {
  texts.push_back(std::make_unique<const std::string>(std::move(text)));
  return *texts.back();
}

void EditHistory::setSaved() {
  saved_ = done_.size();
  isGroupStepOpen_ = false;
  endTyping();
}

void EditHistory::beginGroup() {
  if (depth_++ == 0) isGroupStepOpen_ = false;
}

void EditHistory::clear() {
  done_.clear();
  undone_.clear();
  setSaved();
}

EditSubjects EditHistory::changedSubjects() const {
  EditSubjects subjects;
  const auto add = [&](auto first, auto last) {
    for (; first != last; ++first) subjects |= first->subjects;
  };
  if (saved_ == kNever) {
    subjects.set(EditSubject::code);  // the steps back to it are gone
    add(done_.begin(), done_.end());
  } else if (saved_ <= done_.size()) {
    add(done_.begin() + static_cast<std::ptrdiff_t>(saved_), done_.end());
  } else {
    add(undone_.end() - static_cast<std::ptrdiff_t>(saved_ - done_.size()), undone_.end());
  }
  return subjects;
}

EditStep& EditHistory::beginEdit(EditSubject::Value subject, int typedLine) {
  EditStep& step = openStep(typedLine);
  step.subjects.set(subject);
  return step;
}

EditStep& EditHistory::openStep(int typedLine) {
  if (depth_ > 0 && isGroupStepOpen_) return done_.back();
  undone_.clear();
  if (saved_ > done_.size()) saved_ = kNever;
  isGroupStepOpen_ = depth_ > 0;
  isTypingEnded_ = depth_ > 0;
  done_.emplace_back().typedLine = typedLine;
  return done_.back();
}

EditStep* EditHistory::typingOn(int line) {
  const bool joins = !isTypingEnded_ && depth_ == 0 && undone_.empty() && !done_.empty() &&
                     done_.back().typedLine == line;
  return joins ? &done_.back() : nullptr;
}

EditStep* EditHistory::undo() {
  if (!canUndo()) return nullptr;
  endTyping();
  undone_.push_back(std::move(done_.back()));
  done_.pop_back();
  return &undone_.back();
}

EditStep* EditHistory::redo() {
  if (!canRedo()) return nullptr;
  endTyping();
  done_.push_back(std::move(undone_.back()));
  undone_.pop_back();
  return &done_.back();
}

}  // namespace tamrikon
