// What the list macros ask of the source model: which member or module a link leads to.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tamrikon {

class MacroTable;

/// Where a link leads. All fields are empty if it leads nowhere.
struct LinkTarget {
  const void* wrapper = nullptr;  // identity of the documented thing; means nothing to the template
  std::string member;             // empty for a module
  std::string module;
  bool needsModule = false;  // the member's name isn't unique: labels add the module's name
  int helpId = 0;
};

/// Links may be relative; they count from the member whose page is in work. A link that leads
/// nowhere, or has wrong syntax, is warned of at each call.
class LinkResolver {
 public:
  virtual ~LinkResolver() = default;

  /// The canonical form of `link`, or `link` itself if it leads nowhere.
  virtual std::string canonizeLink(std::string_view link) = 0;

  /// The link of the topic that serves the canonical `link`, if the model knows of one.
  virtual std::optional<std::string> topicLink(std::string_view link) = 0;

  virtual LinkTarget parseLink(std::string_view link) = 0;

  /// Sets PROPS-LINK-LIST, METHODS-LINK-LIST and EVENTS-LINK-LIST to the lists of the module that
  /// `target` (with a wrapper) names.
  virtual void setModuleLists(const LinkTarget& target, MacroTable& macros) = 0;
};

}  // namespace tamrikon
