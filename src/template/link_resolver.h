// What the list macros ask of the source model: which member or module a link leads to.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "template/macro_list.h"
#include "template/topic_id.h"

namespace tamrikon {

/// Where a link leads. All fields are empty if it leads nowhere. The names are views of what the
/// model holds.
struct LinkTarget {
  TopicId id = TopicId::none;
  std::string_view member;  // empty for a module
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

/// What a module has, for its item in a table of contents.
struct ModuleLists {
  std::shared_ptr<const MacroList> properties;
  std::shared_ptr<const MacroList> methods;
  std::shared_ptr<const MacroList> events;
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

  /// The same for a thing whose number is known.
  virtual NamedLink linkOf(TopicId id) = 0;

  /// The module and member whose page is in work, as Module.Member; empty if it is that of none.
  virtual std::string pageInWork() { return {}; }

  /// The lists of the module with that number.
  virtual ModuleLists moduleLists(TopicId module) = 0;
};

}  // namespace tamrikon
