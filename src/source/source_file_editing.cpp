#include <algorithm>
#include <optional>
#include <span>
#include <utility>

#include "base/text.h"
#include "source/line_matching.h"
#include "source/source_file.h"
#include "source/source_head.h"
#include "vb/leading_tabs.h"
#include "vb/vb_text.h"

namespace tamrikon {
namespace {

std::string joined(std::span<const std::string_view> lines, LineEnd end) {
  std::string result;
  for (const std::string_view line : lines) {
    if (line.data() != lines.front().data()) result += textOf(end);
    result += line;
  }
  return result;
}

}  // namespace

/// Tells the observers at its end if isChanged() has flipped.
class SourceFile::SavedStateWatch {
 public:
  explicit SavedStateWatch(SourceFile& file) : file_(file), wasChanged_(file.isChanged()) {}
  SavedStateWatch(const SavedStateWatch&) = delete;
  SavedStateWatch& operator=(const SavedStateWatch&) = delete;
  ~SavedStateWatch() {
    if (file_.isChanged() != wasChanged_) file_.observers_.savedStateChanged();
  }

 private:
  SourceFile& file_;
  bool wasChanged_;
};

void SourceFile::setSaved() {
  const SavedStateWatch watch(*this);
  history_.setSaved();
}

void SourceFile::insertLines(int line, std::string_view text) {
  const SavedStateWatch watch(*this);
  EditStep& step = history_.beginEdit(EditSubject::code);
  const std::vector<std::string_view> pieces =
      dividedLines(step.keep(withoutLeadingTabs(text).value_or(std::string(text))));
  std::vector<std::uint32_t> before;  // attributes that come above the first visible line
  LinesChange change{line, 0, {}};
  for (std::size_t i = 0; i < pieces.size(); ++i) {
    if (!isAttributeLine(pieces[i])) {
      change.other.push_back({pieces[i], {kNoOrigin, 0, format_.newLineEnd}});
      continue;
    }
    SourceAttribute attribute{pieces[i], kNoOrigin, format_.newLineEnd};
    const std::size_t start = i;
    while (isContinued(pieces[i]) && i + 1 < pieces.size()) ++i;
    if (i > start) {
      const std::span<const std::string_view> all(pieces);
      attribute.text = step.keep(joined(all.subspan(start, i - start + 1), format_.newLineEnd));
    }
    std::vector<std::uint32_t>& group =
        change.other.empty() ? before : groups_[groupBehind(change.other.back().tail)];
    group.push_back(newAttribute(attribute));
  }
  if (!before.empty()) {
    const std::uint32_t group =
        line == 1 ? 0 : groupBehind(tails_[static_cast<std::size_t>(line - 2)]);
    insertNumbers(step, group, groups_[group].size(), std::move(before));
  }
  apply(step, std::move(change));
}

void SourceFile::deleteLines(int first, int count) {
  if (count == 0) return;
  const SavedStateWatch watch(*this);
  apply(history_.beginEdit(EditSubject::code), LinesChange{first, count, {}});
}

void SourceFile::replaceLines(int first, int count, std::string_view text, EditKind kind) {
  const std::optional<std::string> indented = withoutLeadingTabs(text);
  if (indented) text = *indented;
  const std::vector<std::string_view> pieces = dividedLines(text);
  const std::span<const std::string_view> old(lines_->data() + (first - 1),
                                              static_cast<std::size_t>(count));
  const LineMatch match = matchLines(old, pieces);
  const std::size_t same = match.prefix + match.suffix;
  if (same == pieces.size() && same == old.size()) return;
  const SavedStateWatch watch(*this);
  const bool isTyped = kind == EditKind::typing && count <= 1 && pieces.size() == 1;
  EditStep* run = isTyped && count == 1 ? history_.typingOn(first) : nullptr;
  if (run != nullptr) return retype(*run, first, text);

  EditStep& step = history_.beginEdit(EditSubject::code, isTyped ? first : 0);
  LinesChange change{first + static_cast<int>(match.prefix), count - static_cast<int>(same), {}};
  if (same < pieces.size()) {
    const char* start = pieces[match.prefix].data();
    const std::string_view last = pieces[pieces.size() - 1 - match.suffix];
    const std::string_view changed(start,
                                   static_cast<std::size_t>(last.data() - start) + last.size());
    change.other = replacement(change.first, change.count, changed, step);
  }
  apply(step, std::move(change));
}

/// The lines that come in place of others, of which none is the same at the start or at the end.
std::vector<SourceLine> SourceFile::replacement(int first, int count, std::string_view text,
                                                EditStep& step) {
  std::vector<SourceLine> lines;
  const std::vector<std::string_view> pieces = dividedLines(step.keep(std::string(text)));
  lines.reserve(pieces.size());
  for (const std::string_view piece : pieces) {
    lines.push_back({piece, {kNoOrigin, 0, format_.newLineEnd}});
  }
  const auto start = static_cast<std::size_t>(first - 1);
  const auto size = static_cast<std::size_t>(count);
  const std::span<const std::string_view> old(lines_->data() + start, size);
  const std::vector<std::size_t> successors = successorsOf(old, pieces);
  std::vector<bool> isTaken(lines.size());
  for (std::size_t i = 0; i < size; ++i) {
    if (successors[i] == kGone) continue;
    SourceLine& line = lines[successors[i]];
    const LineTail& tail = tails_[start + i];
    if (isTaken[successors[i]]) {
      joinAttributes(line.tail, tail, step);
    } else {
      line.tail = tail;
      if (line.text != old[i]) line.tail.origin = kNoOrigin;
      isTaken[successors[i]] = true;
    }
  }
  if (start + size == lines_->size() && !tails_.empty()) lines.back().tail.end = tails_.back().end;
  return lines;
}

void SourceFile::joinAttributes(LineTail& tail, const LineTail& joined, EditStep& step) {
  if (joined.group == 0) return;
  if (tail.group == 0) {
    tail.group = joined.group;
  } else {
    insertNumbers(step, tail.group, groups_[tail.group].size(), groups_[joined.group]);
  }
}

/// Puts the text of a line that is being typed in place of what the same run has typed before.
void SourceFile::retype(EditStep& step, int line, std::string_view text) {
  const auto index = static_cast<std::size_t>(line - 1);
  const std::vector<SourceLine>& old = std::get<LinesChange>(step.changes.front()).other;
  const bool isBack = !old.empty() && old.front().text == text;
  const std::string_view kept = step.keep(std::string(text));
  (*lines_)[index] = kept;
  tails_[index].origin = isBack ? old.front().tail.origin : kNoOrigin;
  step.texts.erase(step.texts.begin(), step.texts.end() - 1);
  ++revision_;
  observers_.linesChanged(line, 1, 1);
}

void SourceFile::replaceAttribute(std::uint32_t number, std::string text,
                                  EditSubject::Value subject) {
  const SavedStateWatch watch(*this);
  EditStep& step = history_.beginEdit(subject);
  const SourceAttribute attribute{step.keep(std::move(text)), kNoOrigin, attributes_[number].end};
  apply(step, AttributeChange{number, attribute});
}

std::uint32_t SourceFile::addAttribute(int line, std::string text, EditSubject::Value subject) {
  const SavedStateWatch watch(*this);
  EditStep& step = history_.beginEdit(subject);
  const std::uint32_t group =
      line == 0 ? 0 : groupBehind(tails_[static_cast<std::size_t>(line - 1)]);
  const std::uint32_t number =
      newAttribute({step.keep(std::move(text)), kNoOrigin, format_.newLineEnd});
  insertNumbers(step, group, line == 0 ? groups_[0].size() : 0, {number});
  return number;
}

void SourceFile::insertNumbers(EditStep& step, std::uint32_t group, std::size_t index,
                               std::vector<std::uint32_t> numbers) {
  apply(step, GroupChange{group, index, 0, std::move(numbers)});
}

void SourceFile::apply(EditStep& step, SourceChange change) {
  std::visit([&](auto& kind) { swap(kind); }, change);
  step.changes.push_back(std::move(change));
  tell(step.changes.back());
}

bool SourceFile::undo() {
  const SavedStateWatch watch(*this);
  EditStep* step = history_.undo();
  if (step == nullptr) return false;
  ++revision_;
  for (auto change = step->changes.rbegin(); change != step->changes.rend(); ++change) {
    std::visit([&](auto& kind) { swap(kind); }, *change);
    tell(*change);
  }
  return true;
}

bool SourceFile::redo() {
  const SavedStateWatch watch(*this);
  EditStep* step = history_.redo();
  if (step == nullptr) return false;
  ++revision_;
  for (SourceChange& change : step->changes) {
    std::visit([&](auto& kind) { swap(kind); }, change);
    tell(change);
  }
  return true;
}

void SourceFile::tell(const SourceChange& change) {
  const auto* lines = std::get_if<LinesChange>(&change);
  if (lines == nullptr) return;
  observers_.linesChanged(lines->first, static_cast<int>(lines->other.size()), lines->count);
}

void SourceFile::swap(LinesChange& change) {
  if (isAsRead_) {
    isAsRead_ = false;
    if (lines_.use_count() > 1) lines_ = std::make_shared<Lines>(*lines_);
  }
  const auto start = change.first - 1;
  const auto count = static_cast<std::ptrdiff_t>(change.count);
  const auto inserted = static_cast<std::ptrdiff_t>(change.other.size());
  const std::ptrdiff_t both = std::min(count, inserted);
  const auto take = [&](std::ptrdiff_t i) {
    const auto index = static_cast<std::size_t>(start + i);
    std::swap((*lines_)[index], change.other[static_cast<std::size_t>(i)].text);
    std::swap(tails_[index], change.other[static_cast<std::size_t>(i)].tail);
  };
  const auto lines = lines_->begin() + start + both;
  const auto tails = tails_.begin() + start + both;
  if (inserted > both) {
    lines_->insert(lines, static_cast<std::size_t>(inserted - both), {});
    tails_.insert(tails, static_cast<std::size_t>(inserted - both), {});
  } else {
    change.other.resize(static_cast<std::size_t>(count));
  }
  for (std::ptrdiff_t i = 0; i < std::max(count, inserted); ++i) take(i);
  if (inserted > both) {
    change.other.resize(static_cast<std::size_t>(both));
    change.other.shrink_to_fit();
  } else {
    lines_->erase(lines, lines + (count - both));
    tails_.erase(tails, tails + (count - both));
  }
  change.count = static_cast<int>(inserted);
  ++revision_;
}

void SourceFile::swap(GroupChange& change) {
  std::vector<std::uint32_t>& group = groups_[change.group];
  const auto start = group.begin() + static_cast<std::ptrdiff_t>(change.index);
  const auto end = start + static_cast<std::ptrdiff_t>(change.count);
  std::vector<std::uint32_t> taken(start, end);
  group.insert(group.erase(start, end), change.other.begin(), change.other.end());
  change.count = change.other.size();
  change.other = std::move(taken);
}

void SourceFile::swap(AttributeChange& change) {
  std::swap(attributes_[change.number], change.other);
}

void SourceFile::reload(std::string bytes) {
  const SavedStateWatch watch(*this);
  const std::string before = text(1, lineCount());
  const std::vector<std::string_view> old =
      lines_->empty() ? std::vector<std::string_view>() : dividedLines(before);
  read(std::move(bytes));
  history_.clear();
  ++revision_;
  const LineMatch match = matchLines(old, *lines_);
  const int same = static_cast<int>(match.prefix + match.suffix);
  const int removed = static_cast<int>(old.size()) - same;
  const int inserted = lineCount() - same;
  if (removed > 0 || inserted > 0) {
    observers_.linesChanged(static_cast<int>(match.prefix) + 1, removed, inserted);
  }
}

}  // namespace tamrikon
