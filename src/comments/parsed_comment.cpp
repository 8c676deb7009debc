#include "comments/parsed_comment.h"

#include <algorithm>
#include <utility>

#include "base/text.h"
#include "vb/vb_text.h"

namespace tamrikon {
namespace {

/// Divides at the character at `pos` (from 1; 0: nowhere): returns what stands before it and
/// leaves in `text` what stands behind it, trimmed. Without a place, `text` becomes empty.
std::string_view cutAt(std::string_view& text, std::size_t pos) {
  const std::string_view word = pos == 0 ? text : text.substr(0, pos - 1);
  text = pos == 0 ? std::string_view() : trim(text.substr(pos));
  return word;
}

std::string_view cutWord(std::string_view& text) {
  return cutAt(text, firstWhitespace(text));
}

void appendLine(std::string& entry, std::string_view line) {
  entry += line;
  entry += '\r';
}

}  // namespace

TagWords::TagWords(const std::array<std::string, ProjectSettings::kUserTags>& userNames) {
  for (std::size_t n = 0; n < userNames.size(); ++n) words_[user1 + n] = "@" + userNames[n];
}

unsigned TagWords::tagsOf(std::string_view line) const {
  line = trimLeading(line);
  if (!line.starts_with('@')) return 0;
  line = trimTrailing(line);
  unsigned tags = 0;
  for (std::size_t tag = 0; tag < tagCount; ++tag) {
    const std::string_view word = words_[tag];
    const bool canStart = word.size() < 2 || (line.size() > 1 && line[1] == word[1]);
    if (canStart && line.starts_with(word)) tags |= 1u << tag;
  }
  return tags;
}

ParsedComment::ParsedComment(CommentList comment, const TagWords& words, Indents indents)
    : comment_(std::move(comment)),
      words_(&words),
      indents_(indents),
      lineCount_(comment_ ? comment_->size() : 0) {
  for (std::size_t line = 0; line < lineCount_; ++line) {
    const unsigned tags = words.tagsOf((*comment_)[line]);
    if (tags == 0) continue;
    if (!tagLines_.empty()) tagLines_.back().end = line;
    tagLines_.push_back({line, lineCount_, tags});
  }
}

ParsedComment parseComment(CommentList comment, const TagWords& words, Indents indents) {
  return ParsedComment(std::move(comment), words, indents);
}

std::vector<std::size_t> ParsedComment::tagLines() const {
  std::vector<std::size_t> lines;
  for (const TagLine& tagLine : tagLines_) lines.push_back(tagLine.line);
  return lines;
}

ParsedComment::Entries ParsedComment::getParamList() const {
  Entries entries = entriesFor(Tag::param);
  for (const TagLine& tagLine : tagLines_) {
    if (!tagLine.is(Tag::param)) continue;
    std::string_view text = tagText(tagLine, Tag::param);
    const bool hasText = firstWhitespace(text) != 0;
    std::string& entry = entries.emplace_back();
    entry.reserve(roomFor(tagLine.line, tagLine.end));
    appendLine(entry, cutWord(text));
    if (hasText) appendLine(entry, text);
    appendContinuationLines(entry, tagLine);
  }
  return entries;
}

std::array<ParsedComment::Entries, 3> ParsedComment::getSettingsList() const {
  std::array<Entries, 3> tables;
  std::array<std::string_view, 3> names;
  for (const TagLine& tagLine : tagLines_) {
    if (!tagLine.is(Tag::set)) continue;
    std::string_view text = tagText(tagLine, Tag::set);
    const std::string_view parameter = cutWord(text);
    const std::string_view constant = cutWord(text);
    const std::string_view value = cutAt(text, firstWhitespaceOutsideStrings(text));

    std::size_t table = 0;
    while (table < names.size() && names[table] != parameter) ++table;
    if (table == names.size()) {
      table = 0;
      while (table < names.size() && !names[table].empty()) ++table;
      if (table == names.size()) continue;
      names[table] = parameter;
    }
    std::string& entry = tables[table].emplace_back();
    for (const std::string_view field : {parameter, constant, value, text}) {
      appendLine(entry, field);
    }
    appendContinuationLines(entry, tagLine);
  }
  return tables;
}

std::string ParsedComment::getDescription() const {
  std::string text;
  const std::size_t end = tagLines_.empty() ? lineCount_ : tagLines_.front().line;
  text.reserve(roomFor(0, end));
  for (std::size_t line = 0; line < end; ++line) {
    if (line == 0) {
      appendFirstLineText(text, (*comment_)[line]);
    } else {
      appendContinuationText(text, (*comment_)[line]);
    }
    text += '\r';
  }
  return text;
}

std::string ParsedComment::getUser(std::size_t number) const {
  if (number < 1 || number > ProjectSettings::kUserTags) return {};
  return firstText(static_cast<Tag>(Tag::user1 + number - 1));
}

/// No entries yet, with memory for all lines of the tag.
ParsedComment::Entries ParsedComment::entriesFor(Tag tag) const {
  Entries entries;
  const auto count = std::count_if(tagLines_.begin(), tagLines_.end(),
                                   [&](const TagLine& tagLine) { return tagLine.is(tag); });
  entries.reserve(static_cast<std::size_t>(count));
  return entries;
}

/// The bytes that the lines up to `end` take at most, with what is put before and behind each.
std::size_t ParsedComment::roomFor(std::size_t line, std::size_t end) const {
  std::size_t size = 0;
  for (; line < end; ++line) size += (*comment_)[line].size() + 2;
  return size;
}

std::string_view ParsedComment::tagText(const TagLine& tagLine, Tag tag) const {
  return trim(trim((*comment_)[tagLine.line]).substr(words_->of(tag).size()));
}

void ParsedComment::appendFirstLineText(std::string& text, std::string_view line) const {
  if (indents_ == Indents::ignored) {
    if (line.starts_with('\'')) {
      line.remove_prefix(1);
    } else {
      line = trimLeading(line);
    }
  }
  text += line;
}

void ParsedComment::appendContinuationText(std::string& text, std::string_view line) const {
  if (indents_ == Indents::ignored) {
    // A second quote keeps the blanks behind it.
    if (line.starts_with('\'')) {
      line.remove_prefix(1);
    } else {
      line = trimLeading(line);
    }
    if (!line.starts_with(' ')) text += ' ';
  }
  text += line;
}

void ParsedComment::appendContinuationLines(std::string& entry, const TagLine& tagLine) const {
  for (std::size_t line = tagLine.line + 1; line < tagLine.end; ++line) {
    appendContinuationText(entry, (*comment_)[line]);
    entry += '\r';
  }
}

ParsedComment::Entries ParsedComment::linkEntries(Tag tag) const {
  Entries entries = entriesFor(tag);
  for (const TagLine& tagLine : tagLines_) {
    if (!tagLine.is(tag)) continue;
    std::string_view text = tagText(tagLine, tag);
    if (text.empty()) continue;
    std::string& entry = entries.emplace_back();
    entry.reserve(text.size() + 1);
    appendLine(entry, cutWord(text));
    entry += text;
  }
  return entries;
}

std::string ParsedComment::firstText(Tag tag) const {
  for (const TagLine& tagLine : tagLines_) {
    if (!tagLine.is(tag)) continue;
    std::string text;
    text.reserve(roomFor(tagLine.line, tagLine.end));
    text += tagText(tagLine, tag);
    for (std::size_t line = tagLine.line + 1; line < tagLine.end; ++line) {
      text += '\r';
      appendContinuationText(text, (*comment_)[line]);
    }
    return text;
  }
  return {};
}

std::string ParsedComment::lastText(Tag tag) const {
  for (auto tagLine = tagLines_.rbegin(); tagLine != tagLines_.rend(); ++tagLine) {
    if (tagLine->is(tag)) return std::string(tagText(*tagLine, tag));
  }
  return {};
}

}  // namespace tamrikon
