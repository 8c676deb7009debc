// Fetches the comments of wrappers from the source, and gives out help ids on the way.
#pragma once

#include <cstdint>

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
  /// the IDE as well if the settings want it. Each call takes a number.
  CommentList getComment(Wrapper& wrapper);

  /// The raw lines of a module's comment; nothing else changes.
  static CommentList getModuleComment(const ModuleSource& source);

  /// Gives the wrapper the next help id.
  void takeHelpId(Wrapper& wrapper);

  /// Whether the wrapper is to be documented; its `comment` then holds body lines: its own, or a
  /// generated comment if it had none.
  bool prepareComment(Wrapper& wrapper) const;

 private:
  const ProjectSettings& settings_;
};

}  // namespace tamrikon
