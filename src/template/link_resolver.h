// What the list macros ask of the source model: which member or module a link leads to.
#pragma once

#include <string>
#include <string_view>

namespace tamrikon {

class MacroTable;

/// Where a link leads. All fields are empty if it leads nowhere. The names are views of what the
/// model holds.
struct LinkTarget {
  const void* wrapper = nullptr;  // identity of the documented thing; means nothing to the template
  std::string_view member;        // empty for a module
  std::string_view module;
  bool needsModule = false;  // the member's name isn't unique: labels add the module's name
  int helpId = 0;
};

/// A documented thing by itself, whichever topic serves it.
struct NamedLink {
  std::string_view link;
  std::string_view name;
  std::string_view module;
  bool needsModule = false;  // as in LinkTarget
  LinkTarget target;         // the topic
};

/// Links may be relative; they count from the member whose page is in work. A link that leads
/// nowhere, or has wrong syntax, is warned of at each call.
class LinkResolver {
 public:
  virtual ~LinkResolver() = default;

  /// What `link` names.
  virtual LinkTarget parseLink(std::string_view link) = 0;

  /// The topic that serves what `link` names: that of another member, if they share one.
  virtual LinkTarget topicOf(std::string_view link) = 0;

  /// The same for a wrapper that is known.
  virtual NamedLink linkOf(const void* wrapper) = 0;

  /// The module and member whose page is in work, as Module.Member; empty if it is that of none.
  virtual std::string pageInWork() { return {}; }

  /// Sets PROPS-LINK-LIST, METHODS-LINK-LIST and EVENTS-LINK-LIST to the lists of the module that
  /// `target` (with a wrapper) names.
  virtual void setModuleLists(const LinkTarget& target, MacroTable& macros) = 0;
};

}  // namespace tamrikon
