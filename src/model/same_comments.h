// Resolves @same: a comment that points to another member is replaced by that member's, and the
// topic of that member serves both.
#pragma once

#include <string>
#include <unordered_map>

#include "comments/parsed_comment.h"
#include "model/links.h"
#include "model/wrapper_collections.h"

namespace tamrikon {

class SameComments {
 public:
  /// All of them must outlive this object.
  SameComments(const WrapperCollections& wrappers, Links& links, const TagWords& tagWords)
      : wrappers_(wrappers), links_(links), tagWords_(tagWords) {}

  /// Follows chains to their end. A reference that leads nowhere, or in a circle, leaves the member
  /// with its own comment. Afterwards every wrapper knows whose topic serves it.
  void resolveSameComments();

 private:
  enum class State { onTheWay, unresolved, done };

  /// The wrapper that its comment points to; null if it doesn't point, with `points` telling
  /// whether it does.
  Wrapper* targetOf(const Wrapper& wrapper, bool& points);
  void resolveSameOf(Wrapper& wrapper);

  const WrapperCollections& wrappers_;
  Links& links_;
  const TagWords& tagWords_;
  std::unordered_map<const Wrapper*, State> states_;  // of those that point to another
};

}  // namespace tamrikon
