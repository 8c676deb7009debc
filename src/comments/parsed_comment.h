// Takes the body of a comment apart: a description, then lines that begin with a tag word, each
// with the lines that continue it.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "comments/comment_lines.h"
#include "settings/project_settings.h"

namespace tamrikon {

/// The words that begin the tags of a project's comments.
class TagWords {
 public:
  enum Tag : std::size_t {
    see,
    example,
    param,
    set,
    rem,
    return_,
    author,
    revision,
    version,
    same,
    includeSource,
    user1,
    tagCount = user1 + ProjectSettings::kUserTags
  };

  explicit TagWords(const std::array<std::string, ProjectSettings::kUserTags>& userNames);

  const std::string& of(Tag tag) const { return words_[tag]; }

  /// The tags that a line begins, a bit for each: a word is found by its prefix, so that a line can
  /// count for several.
  unsigned tagsOf(std::string_view line) const;

 private:
  std::array<std::string, tagCount> words_{"@see",     "@example", "@param",        "@set",
                                           "@rem",     "@return",  "@author",       "@revision",
                                           "@version", "@same",    "@includesource"};
};

/// What becomes of the blanks that a line of a comment begins with.
enum class Indents { kept, ignored };

/// As the settings want it for pages.
inline Indents indentsFor(const ProjectSettings& settings) {
  return settings.indentMode == 1 ? Indents::ignored : Indents::kept;
}

/// Lines inside a result are divided by CR. What isn't there reads as empty.
class ParsedComment {
 public:
  using Entries = std::vector<std::string>;

  /// Whether nobody wrote the comment.
  bool isGenerated() const { return comment_ && comment_->isGenerated; }

  /// The lines, from 0, that begin a tag.
  std::vector<std::size_t> tagLines() const;

  /// "@see" and "@example": target, CR, label.
  Entries getSeeList() const { return linkEntries(Tag::see); }
  Entries getExampleList() const { return linkEntries(Tag::example); }

  /// "@param": name and lines of text, each closed by CR.
  Entries getParamList() const;

  /// "@set", by parameter: the entries of the first three parameters, each entry being parameter,
  /// constant, value, description and further lines, all closed by CR.
  std::array<Entries, 3> getSettingsList() const;

  /// "@same": the text of the last such line.
  std::string getSame() const { return lastText(Tag::same); }

  /// All lines before the first tag line, each closed by CR.
  std::string getDescription() const;

  /// The text of the first such tag, CR between its lines.
  std::string getRemarks() const { return firstText(Tag::rem); }
  std::string getReturn() const { return firstText(Tag::return_); }
  std::string getAuthor() const { return firstText(Tag::author); }
  std::string getRevision() const { return firstText(Tag::revision); }
  std::string getVersion() const { return firstText(Tag::version); }

  /// The same for user tag `number`, from 1 to 5.
  std::string getUser(std::size_t number) const;

  /// "@includesource": the text of the last such line.
  std::string getIncludeSource() const { return lastText(Tag::includeSource); }

 private:
  friend ParsedComment parseComment(CommentList comment, const TagWords& words, Indents indents);

  using Tag = TagWords::Tag;
  struct TagLine {
    std::size_t line;  // from 0
    std::size_t end;   // one past the last line that continues it
    unsigned tags;     // bit by Tag
    bool is(Tag tag) const { return (tags >> tag & 1u) != 0; }
  };

  ParsedComment(CommentList comment, const TagWords& words, Indents indents);

  Entries entriesFor(Tag tag) const;
  std::size_t roomFor(std::size_t line, std::size_t end) const;
  std::string_view tagText(const TagLine& tagLine, Tag tag) const;
  void appendFirstLineText(std::string& text, std::string_view line) const;
  void appendContinuationText(std::string& text, std::string_view line) const;
  void appendContinuationLines(std::string& entry, const TagLine& tagLine) const;
  Entries linkEntries(Tag tag) const;
  std::string firstText(Tag tag) const;
  std::string lastText(Tag tag) const;

  CommentList comment_;
  const TagWords* words_;
  Indents indents_;
  std::size_t lineCount_ = 0;
  std::vector<TagLine> tagLines_;  // in the order of the comment: readers look at nothing else
};

/// Takes the body lines of `comment` apart, which may be null. Lines that are appended to it later
/// don't count. `words` must outlive the result.
ParsedComment parseComment(CommentList comment, const TagWords& words, Indents indents);

}  // namespace tamrikon
