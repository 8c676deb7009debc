// Answers about all wrappers at once that would otherwise walk the collections for each of them:
// which names are unique, which comments are shared, which members a module has.
#pragma once

#include <compare>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "model/wrapper_collections.h"

namespace tamrikon {

class WrapperIndex {
 public:
  /// A picture of `wrappers` and their comments as they are now.
  explicit WrapperIndex(const WrapperCollections& wrappers);

  struct ModuleMembers {
    std::vector<Wrapper*> properties;  // Get before Set before Let, one for each name
    std::vector<Wrapper*> methods;
    std::vector<Wrapper*> events;
  };

  /// The documented members of a module; empty lists for one that has none.
  const ModuleMembers& membersOf(const CodeModule& module) const;

  /// The names of the modules in which the comment of `wrapper` applies, each once, or null if that
  /// is no other than its own.
  const KeyedList<std::string_view>* sharingModules(const Wrapper& wrapper) const;

  /// Whether another wrapper of the same sort bears the same name and none of those shares the
  /// comment. Properties of one module don't clash, nor do methods of classes with functions of
  /// standard modules.
  bool needsModuleName(const Wrapper& wrapper) const { return ambiguous_.count(&wrapper) != 0; }

 private:
  enum class Group { none, constants, variables, events, methods, functions, properties };

  /// A wrapper among those of its name and group.
  struct Named {
    std::size_t hash;  // of name and group
    Group group;
    const Wrapper* wrapper;
  };
  /// Who has a comment, as far as names clash: a wrapper, or for properties all of a module.
  struct Holder {
    const Comment* comment;
    const void* owner;
    auto operator<=>(const Holder&) const = default;
  };
  using NamedRun = std::vector<Named>::const_iterator;

  static Group groupOf(const Wrapper& wrapper);
  static bool sharesName(const Named& a, const Named& b);
  void findAmbiguous(const WrapperCollections& wrappers);
  void findAmbiguousIn(NamedRun begin, NamedRun end);
  void collectMembers(const WrapperCollections& wrappers);
  void collectModules(const WrapperList& all);

  std::unordered_set<const Wrapper*> ambiguous_;
  std::vector<Holder> holders_;  // of the name in work; keeps its memory
  std::unordered_map<const CodeModule*, ModuleMembers> members_;
  // Of the comments that several wrappers hold, the modules of these.
  std::unordered_map<const Comment*, KeyedList<std::string_view>> modules_;
};

}  // namespace tamrikon
