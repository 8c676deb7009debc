#include "host/source_file.h"

#include <algorithm>
#include <utility>

#include "base/utf8.h"
#include "base/vb_text.h"
#include "host/source_head.h"

namespace tamrikon {

/// Composes the file's bytes line by line.
class SourceFile::Writer {
 public:
  explicit Writer(const SourceFile& file) : file_(file) {
    if (file.encoding_ == TextEncoding::utf8WithMark) bytes_ = "\xEF\xBB\xBF";
    LineReader raw(file.raw_);
    while (raw.next()) rawLines_.push_back(raw.line());
    rawLines_.push_back({});
    bytes_.reserve(file.text_.size() + file.text_.size() / 8);
  }

  /// Adds a piece of one or more physical lines. False if the page lacks a character of it.
  bool add(std::string_view text, std::uint32_t origin, LineEnd end) {
    LineReader reader(text);
    for (bool more = true; more;) {
      // Behind a line end at the end of the piece stands its last line, an empty one.
      const bool found = reader.next();
      more = found && reader.end() != LineEnd::none;
      startLine();
      if (!addLine(found ? reader.line() : std::string_view(), origin)) return false;
      if (origin != kNew) ++origin;
      pendingEnd_ = more ? reader.end() : end;
    }
    return true;
  }

  std::string finish() {
    endLine(pendingEnd_);
    return std::move(bytes_);
  }

  const LackingCharacter& lacking() const { return lacking_; }

 private:
  void startLine() {
    if (line_ > 0) {
      // The last line of the old file may have had no end, and now stands before another one.
      endLine(pendingEnd_ == LineEnd::none ? file_.newLineEnd_ : pendingEnd_);
    }
    ++line_;
  }

  void endLine(LineEnd end) {
    // An empty line that has come behind a lone CR would melt into it.
    const bool wouldMelt = end == LineEnd::lf && bytes_.ends_with('\r');
    bytes_ += textOf(wouldMelt ? LineEnd::crLf : end);
  }

  bool addLine(std::string_view text, std::uint32_t origin) {
    if (origin != kNew && !file_.raw_.empty()) {
      bytes_ += rawLines_[origin];
    } else if (origin != kNew || file_.encoding_ != TextEncoding::codePage || isAscii(text)) {
      bytes_ += text;
    } else {
      std::size_t offset = 0;
      const std::optional<std::string> encoded = file_.page_.encodeExactly(text, offset);
      if (!encoded) {
        lacking_ = {line_, readCodePoint(text, offset)};
        return false;
      }
      bytes_ += *encoded;
    }
    return true;
  }

  const SourceFile& file_;
  std::string bytes_;
  std::vector<std::string_view> rawLines_;
  LineEnd pendingEnd_ = LineEnd::none;
  int line_ = 0;
  LackingCharacter lacking_;
};

SourceFile::SourceFile(std::string bytes, const CodePage& page) : page_(page) {
  if (isAscii(bytes)) {
    text_ = std::move(bytes);
  } else {
    DecodedText decoded = decodeText(bytes, page);
    encoding_ = decoded.encoding;
    text_ = std::move(decoded.text);
    if (encoding_ == TextEncoding::utf8WithMark) bytes.erase(0, 3);
    if (bytes != text_) raw_ = std::move(bytes);
  }
  newLineEnd_ = firstLineEnd(text_);
  const SourceHead head = readSourceHead(text_);
  headBlock_ = std::string_view(text_).substr(0, head.attributesStart);
  blockClass_ = head.blockClass;
  readLines(head.attributesStart, head.codeStart);
}

void SourceFile::readLines(std::size_t attributesStart, std::size_t codeStart) {
  std::uint32_t origin = 0;
  for (LineReader reader(headBlock_); reader.next(); ++origin) headBlockEnd_ = reader.end();
  headBlock_.remove_suffix(textOf(headBlockEnd_).size());
  const std::size_t guess = (text_.size() - codeStart) / 24;
  lines_.reserve(guess);
  tails_.reserve(guess);
  LineReader reader(text_, attributesStart);
  for (std::size_t start = attributesStart; reader.next(); start = reader.offset()) {
    const bool isInHead = start < codeStart;
    if (!isInHead && !(isAttributeLine(reader.line()) && !lines_.empty())) {
      lines_.push_back(reader.line());
      tails_.push_back({origin++, 0, reader.end()});
      continue;
    }
    Attribute attribute{reader.line(), origin++, reader.end()};
    while (isContinued(reader.line()) && reader.next()) {
      const std::size_t end = reader.offset() - textOf(reader.end()).size();
      attribute.text = std::string_view(text_).substr(start, end - start);
      attribute.end = reader.end();
      ++origin;
    }
    addAttributeTo(isInHead ? 0 : groupBehind(tails_.back()), attribute);
  }
}

std::uint32_t SourceFile::groupBehind(LineTail& tail) {
  if (tail.group == 0) {
    tail.group = static_cast<std::uint32_t>(groups_.size());
    groups_.emplace_back();
  }
  return tail.group;
}

std::uint32_t SourceFile::addAttributeTo(std::uint32_t group, const Attribute& attribute) {
  const auto number = static_cast<std::uint32_t>(attributes_.size());
  attributes_.push_back(attribute);
  groups_[group].push_back(number);
  return number;
}

std::string_view SourceFile::keep(std::string text) {
  edits_.push_back(std::move(text));
  return edits_.back();
}

std::string SourceFile::text(int first, int count) const {
  const auto begin = lines_.begin() + (first - 1);
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

void SourceFile::insertLines(int line, std::string_view text) {
  const std::string_view kept = keep(std::string(text));
  std::vector<std::string_view> lines;
  std::vector<LineTail> tails;
  LineReader reader(kept);
  // A line end at the end of the text divides too: an empty line follows it.
  bool more = true;
  for (bool isHidden = false; more;) {
    const bool found = reader.next();
    const std::string_view piece = found ? reader.line() : std::string_view();
    more = found && reader.end() != LineEnd::none;
    const bool continuesHidden = isHidden;
    isHidden = continuesHidden ? isContinued(piece) : isAttributeLine(piece);
    if (!continuesHidden && !isHidden) {
      lines.push_back(piece);
      tails.push_back({kNew, 0, newLineEnd_});
      continue;
    }
    LineTail* tail = !tails.empty() ? &tails.back() : nullptr;
    if (tail == nullptr && line > 1) tail = &tails_[static_cast<std::size_t>(line - 2)];
    const std::uint32_t group = tail != nullptr ? groupBehind(*tail) : 0;
    if (continuesHidden) {
      Attribute& attribute = attributes_[groups_[group].back()];
      attribute.text =
          keep(std::string(attribute.text) + std::string(textOf(newLineEnd_)) + std::string(piece));
    } else {
      addAttributeTo(group, {piece, kNew, newLineEnd_});
      isHidden = isContinued(piece);
    }
  }
  lines_.insert(lines_.begin() + (line - 1), lines.begin(), lines.end());
  tails_.insert(tails_.begin() + (line - 1), tails.begin(), tails.end());
  ++revision_;
  changed_ = true;
}

void SourceFile::deleteLines(int first, int count) {
  if (count == 0) return;
  lines_.erase(lines_.begin() + (first - 1), lines_.begin() + (first - 1 + count));
  tails_.erase(tails_.begin() + (first - 1), tails_.begin() + (first - 1 + count));
  ++revision_;
  changed_ = true;
}

const std::vector<std::uint32_t>& SourceFile::attributesBehind(int line) const {
  static const std::vector<std::uint32_t> kNone;
  if (line == 0) return groups_[0];
  const std::uint32_t group = tails_[static_cast<std::size_t>(line - 1)].group;
  return group == 0 ? kNone : groups_[group];
}

void SourceFile::replaceAttribute(std::uint32_t number, std::string text) {
  attributes_[number].text = keep(std::move(text));
  attributes_[number].origin = kNew;
  changed_ = true;
}

std::uint32_t SourceFile::addAttribute(int line, std::string text) {
  const std::uint32_t group =
      line == 0 ? 0 : groupBehind(tails_[static_cast<std::size_t>(line - 1)]);
  const std::uint32_t number = addAttributeTo(group, {keep(std::move(text)), kNew, newLineEnd_});
  std::vector<std::uint32_t>& numbers = groups_[group];
  if (line != 0) std::rotate(numbers.begin(), numbers.end() - 1, numbers.end());
  changed_ = true;
  return number;
}

std::optional<std::string> SourceFile::bytes(LackingCharacter& lacking) const {
  Writer writer(*this);
  const auto addGroup = [&](std::uint32_t group) {
    return std::all_of(groups_[group].begin(), groups_[group].end(), [&](std::uint32_t number) {
      const Attribute& attribute = attributes_[number];
      return writer.add(attribute.text, attribute.origin, attribute.end);
    });
  };
  bool fits = headBlock_.empty() || writer.add(headBlock_, 0, headBlockEnd_);
  fits = fits && addGroup(0);
  for (std::size_t i = 0; fits && i < lines_.size(); ++i) {
    fits = writer.add(lines_[i], tails_[i].origin, tails_[i].end);
    if (fits && tails_[i].group != 0) fits = addGroup(tails_[i].group);
  }
  if (!fits) {
    lacking = writer.lacking();
    return std::nullopt;
  }
  return writer.finish();
}

}  // namespace tamrikon
