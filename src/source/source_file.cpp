#include "source/source_file.h"

#include <algorithm>
#include <utility>

#include "base/utf8.h"
#include "platform/text_decoding.h"
#include "source/source_head.h"
#include "vb/leading_tabs.h"
#include "vb/vb_text.h"

namespace tamrikon {

SourceFile::SourceFile(std::string bytes, const CodePage& page) : format_{page} {
  read(std::move(bytes));
}

void SourceFile::read(std::string bytes) {
  format_.encoding = TextEncoding::codePage;
  raw_.clear();
  if (isAscii(bytes)) {
    text_ = std::make_shared<const std::string>(std::move(bytes));
  } else {
    DecodedText decoded = decodeText(bytes, format_.page);
    format_.encoding = decoded.encoding;
    text_ = std::make_shared<const std::string>(std::move(decoded.text));
    if (format_.encoding == TextEncoding::utf8WithMark) bytes.erase(0, 3);
    if (bytes != *text_) raw_ = std::move(bytes);
  }
  format_.newLineEnd = firstLineEnd(*text_);
  SourceHead head = readSourceHead(*text_);
  if (std::optional<std::string> indented = withoutLeadingTabs(*text_, head.codeStart)) {
    if (raw_.empty()) raw_ = *text_;
    text_ = std::make_shared<const std::string>(std::move(*indented));
    head = readSourceHead(*text_);
  }
  headBlock_ = std::string_view(*text_).substr(0, head.attributesStart);
  blockClass_ = head.blockClass;
  lines_ = std::make_shared<Lines>();
  isAsRead_ = true;
  tails_.clear();
  attributes_.clear();
  groups_.assign(1, {});
  readLines(head.attributesStart, head.codeStart);
}

void SourceFile::readLines(std::size_t attributesStart, std::size_t codeStart) {
  std::uint32_t origin = 0;
  headBlockEnd_ = LineEnd::none;
  for (LineReader reader(headBlock_); reader.next(); ++origin) headBlockEnd_ = reader.end();
  headBlock_.remove_suffix(textOf(headBlockEnd_).size());
  const std::size_t guess = (text_->size() - codeStart) / 24;
  lines_->reserve(guess);
  tails_.reserve(guess);
  LineReader reader(*text_, attributesStart);
  for (std::size_t start = attributesStart; reader.next(); start = reader.offset()) {
    const bool isInHead = start < codeStart;
    if (!isInHead && !(isAttributeLine(reader.line()) && !lines_->empty())) {
      lines_->push_back(reader.line());
      tails_.push_back({origin++, 0, reader.end()});
      continue;
    }
    SourceAttribute attribute{reader.line(), origin++, reader.end()};
    while (isContinued(reader.line()) && reader.next()) {
      const std::size_t end = reader.offset() - textOf(reader.end()).size();
      attribute.text = std::string_view(*text_).substr(start, end - start);
      attribute.end = reader.end();
      ++origin;
    }
    const std::uint32_t group = isInHead ? 0 : groupBehind(tails_.back());
    groups_[group].push_back(newAttribute(attribute));
  }
  lines_->shrink_to_fit();
  tails_.shrink_to_fit();
}

std::uint32_t SourceFile::groupBehind(LineTail& tail) {
  if (tail.group == 0) {
    tail.group = static_cast<std::uint32_t>(groups_.size());
    groups_.emplace_back();
  }
  return tail.group;
}

std::uint32_t SourceFile::newAttribute(const SourceAttribute& attribute) {
  attributes_.push_back(attribute);
  return static_cast<std::uint32_t>(attributes_.size() - 1);
}

std::string SourceFile::text(int first, int count) const {
  const auto begin = lines_->begin() + (first - 1);
  const auto end = begin + count;
  std::size_t size = 0;
  for (auto line = begin; line != end; ++line) size += line->size() + 2;
  std::string result;
  result.reserve(size);
  for (auto line = begin; line != end; ++line) {
    if (line != begin) result += "\r\n";
    result += *line;
  }
  return result;
}

SharedLines SourceFile::shareLines() const {
  if (isAsRead_) return {text_, lines_};
  const auto text = std::make_shared<std::string>();
  std::size_t size = 0;
  for (const std::string_view line : *lines_) size += line.size();
  text->reserve(size);  // the lines are views of it
  const auto lines = std::make_shared<Lines>();
  lines->reserve(lines_->size());
  for (const std::string_view line : *lines_) {
    lines->emplace_back(text->data() + text->size(), line.size());
    *text += line;
  }
  return {text, lines};
}

const std::vector<std::uint32_t>& SourceFile::attributesBehind(int line) const {
  static const std::vector<std::uint32_t> kNone;
  if (line == 0) return groups_[0];
  const std::uint32_t group = tails_[static_cast<std::size_t>(line - 1)].group;
  return group == 0 ? kNone : groups_[group];
}

bool SourceFile::runsOn(std::size_t index, bool ranOn) const {
  if (index + 1 == lines_->size() || !isContinued((*lines_)[index])) return false;
  const auto isNew = [](const LineTail& tail) { return tail.origin == kNoOrigin; };
  return ranOn || isNew(tails_[index]) || isNew(tails_[index + 1]);
}

std::string SourceFile::fault() const {
  const auto at = [&](std::size_t offset) {
    int line = 1;
    for (LineReader reader(*text_); reader.next() && reader.offset() <= offset;) ++line;
    return "line " + std::to_string(line);
  };
  const SourceHead head = readSourceHead(*text_);
  if (head.unclosedStart) return at(*head.unclosedStart) + ": its Begin has no End";
  const std::size_t null = text_->find('\0');
  if (null == std::string::npos) return {};
  return at(null) + ": it has a null character, so that it isn't text in a code page or UTF-8";
}

std::optional<std::string> SourceFile::bytes(LackingCharacter& lacking) const {
  SourceWriter writer(format_, raw_, text_->size() + text_->size() / 8);
  const auto addGroup = [&](std::uint32_t group) {
    return std::all_of(groups_[group].begin(), groups_[group].end(), [&](std::uint32_t number) {
      const SourceAttribute& attribute = attributes_[number];
      return writer.add(attribute.text, attribute.origin, attribute.end);
    });
  };
  int line = 0;
  const auto fail = [&](bool isHidden) {
    lacking = writer.lacking();
    lacking.line = line;
    if (isHidden) lacking.column = 0;
    return std::nullopt;
  };
  // What was read and isn't changed always fits.
  if (!headBlock_.empty()) writer.add(headBlock_, 0, headBlockEnd_);
  if (!addGroup(0)) return fail(true);
  std::vector<std::uint32_t> waiting;  // groups that go behind the end of a statement
  bool ranOn = false;
  for (std::size_t i = 0; i < lines_->size(); ++i) {
    ++line;
    if (!writer.add((*lines_)[i], tails_[i].origin, tails_[i].end)) return fail(false);
    if (tails_[i].group != 0) waiting.push_back(tails_[i].group);
    ranOn = runsOn(i, ranOn);
    if (ranOn) continue;
    if (!std::all_of(waiting.begin(), waiting.end(), addGroup)) return fail(true);
    waiting.clear();
  }
  return writer.finish();
}

}  // namespace tamrikon
