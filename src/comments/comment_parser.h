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

/// Serves one comment at a time. Lines inside a result are divided by CR. A tag word is found by
/// its prefix, so that a line can count for several tags. Readers report nothing: what isn't there
/// reads as empty.
class CommentParser {
 public:
  using Entries = std::vector<std::string>;

  /// `settings` must outlive the parser; their indent mode counts when a reader is called.
  explicit CommentParser(const ProjectSettings& settings) : settings_(settings) {}

  /// Takes the body lines and, from the settings, the names of the user tags. Lines that are
  /// appended to the list later don't count until it is given anew.
  void setComment(CommentList comment);
  const CommentList& comment() const { return comment_; }

  /// The lines, from 0, that begin a tag.
  std::vector<std::size_t> tagLines() const;

  /// "@see" and "@example": target, CR, label.
  Entries getSeeList() const { return linkEntries(see); }
  Entries getExampleList() const { return linkEntries(example); }

  /// "@param": name and lines of text, each closed by CR.
  Entries getParamList() const;

  /// "@set", by parameter: the entries of the first three parameters, each entry being parameter,
  /// constant, value, description and further lines, all closed by CR.
  std::array<Entries, 3> getSettingsList() const;

  /// "@same": the text of the last such line.
  std::string getSame() const { return lastText(same); }

  /// All lines before the first tag line, each closed by CR.
  std::string getDescription() const;

  /// The text of the first such tag, CR between its lines.
  std::string getRemarks() const { return firstText(rem); }
  std::string getReturn() const { return firstText(return_); }
  std::string getAuthor() const { return firstText(author); }
  std::string getRevision() const { return firstText(revision); }
  std::string getVersion() const { return firstText(version); }

  /// The same for user tag `number`, from 1 to 5.
  std::string getUser(std::size_t number) const;

  /// "@includesource": the text of the last such line.
  std::string getIncludeSource() const { return lastText(includeSource); }

 private:
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
  struct TagLine {
    std::size_t line;  // from 0
    std::size_t end;   // one past the last line that continues it
    unsigned tags;     // bit by Tag
    bool is(Tag tag) const { return (tags >> tag & 1u) != 0; }
  };

  void loadUserTags();
  unsigned tagsOf(std::string_view line) const;
  Entries entriesFor(Tag tag) const;
  std::size_t roomFor(std::size_t line, std::size_t end) const;
  std::string_view tagText(const TagLine& tagLine, Tag tag) const;
  void appendFirstLineText(std::string& text, std::string_view line) const;
  void appendContinuationText(std::string& text, std::string_view line) const;
  void appendContinuationLines(std::string& entry, const TagLine& tagLine) const;
  Entries linkEntries(Tag tag) const;
  std::string firstText(Tag tag) const;
  std::string lastText(Tag tag) const;

  const ProjectSettings& settings_;
  CommentList comment_;
  std::array<std::string, tagCount> words_{"@see",     "@example", "@param",        "@set",
                                           "@rem",     "@return",  "@author",       "@revision",
                                           "@version", "@same",    "@includesource"};
  std::size_t lineCount_ = 0;
  std::vector<TagLine> tagLines_;  // in the order of the comment: readers look at nothing else
};

}  // namespace tamrikon
