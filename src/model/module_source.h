// A code module with a snapshot of its lines and of what stands where. Whoever edits the module
// makes a new one.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "ide/ide.h"
#include "vb/module_lines.h"

namespace tamrikon {

class ModuleSource {
 public:
  /// `module` must outlive this object.
  explicit ModuleSource(CodeModule& module);
  ModuleSource(const ModuleSource&) = delete;
  ModuleSource& operator=(const ModuleSource&) = delete;

  CodeModule& module() const { return module_; }
  const ModuleLines& lines() const { return lines_; }
  const std::string& name() const { return name_; }
  ComponentType type() const { return type_; }

  struct ModuleMember {
    Member* member;
    std::string name;
    MemberType type;
    int line;  // physical line of the declaration
  };

  /// In the order of the module's members.
  const std::vector<ModuleMember>& members() const { return members_; }

  /// The first member that is a method, or a property unless `kind` is `procedure`, and bears this
  /// name; null if there is none.
  const ModuleMember* procedureMember(const std::string& name, ProcKind kind) const;

  /// The first member, properties left out, that is declared on this line; null if there is none.
  const ModuleMember* memberAtLine(int line) const;

 private:
  CodeModule& module_;
  ModuleLines lines_;
  std::string name_;
  ComponentType type_;
  std::vector<ModuleMember> members_;
  std::unordered_multimap<std::string_view, std::size_t> byName_;
  std::vector<std::pair<int, std::size_t>> byLine_;  // ascending
};

/// The sources of a compile: each module is read once.
class SourceCache {
 public:
  ModuleSource& of(CodeModule& module);
  void clear() { sources_.clear(); }

  /// The bytes of all of them.
  std::size_t textSize() const {
    std::size_t size = 0;
    for (const auto& [module, source] : sources_) size += source->lines().textSize();
    return size;
  }

 private:
  std::unordered_map<const CodeModule*, std::unique_ptr<ModuleSource>> sources_;
};

}  // namespace tamrikon
