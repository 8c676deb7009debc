// Fetches the comments of wrappers from the source, and gives out help ids on the way.
#pragma once

#include <cstdint>

#include "comments/comment_finder.h"
#include "model/wrapper.h"

namespace tamrikon {

class WrapperComments {
 public:
  /// `settings` must outlive this object.
  explicit WrapperComments(const ProjectSettings& settings) : settings_(settings) {}

  /// The number that the next wrapper gets.
  std::int32_t nextHelpId = 100;

  /// The raw lines of a member's comment. Sets `hadComment`, unless what stands above the
  /// declaration is no structured comment, and gives the wrapper the next help id, which goes to
  /// the IDE as well if the settings want it. Each call takes a number. Throws std::length_error if
  /// copies for several names of one statement take up too much memory.
  CommentList getComment(Wrapper& wrapper);

  /// The raw lines of a module's comment; nothing else changes.
  static CommentList getModuleComment(const ModuleSource& source);

  /// Gives the wrapper the next help id.
  void takeHelpId(Wrapper& wrapper);

  /// Whether the wrapper is to be documented; its `comment` then holds body lines: its own, or a
  /// generated comment if it had none.
  bool prepareComment(Wrapper& wrapper) const;

 private:
  const CommentSearch& searchAbove(const ModuleLines& lines, int codeLocation);

  const ProjectSettings& settings_;
  const ModuleLines* searchedLines_ = nullptr;  // of the last search
  int searchedLocation_ = 0;
  CommentSearch search_;
  std::size_t searchedSize_ = 0;  // of the comment that it found, in bytes
  std::size_t copied_ = 0;        // of comments that were given out more than once
};

}  // namespace tamrikon
