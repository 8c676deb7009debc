#include "model/module_source.h"

#include <algorithm>

namespace tamrikon {

ModuleSource::ModuleSource(CodeModule& module)
    : module_(module),
      lines_(module.ShareLines()),
      name_(module.Name()),
      type_(module.Parent().Type()) {
  const Members& members = module.Members();
  const int count = members.Count();
  members_.reserve(static_cast<std::size_t>(count));  // the names are views of it
  for (int number = 1; number <= count; ++number) {
    const std::size_t index = members_.size();
    const bool told = tryStep([&] {
      Member& member = members.Item(number);
      members_.push_back(
          {&member, member.Name(), member.Type(), lines_.toPhysicalLine(member.CodeLocation())});
    });
    if (!told) continue;
    const ModuleMember& added = members_.back();
    if (added.type != MemberType::property) byLine_.emplace_back(added.line, index);
    if (added.type == MemberType::property || added.type == MemberType::method) {
      byName_.emplace(added.name, index);
    }
  }
  std::sort(byLine_.begin(), byLine_.end());
}

const ModuleSource::ModuleMember* ModuleSource::procedureMember(const std::string& name,
                                                                ProcKind kind) const {
  std::size_t first = members_.size();
  const auto [begin, end] = byName_.equal_range(name);
  for (auto found = begin; found != end; ++found) {
    const bool counts =
        members_[found->second].type == MemberType::method || kind != ProcKind::procedure;
    if (counts && found->second < first) first = found->second;
  }
  return first < members_.size() ? &members_[first] : nullptr;
}

const ModuleSource::ModuleMember* ModuleSource::memberAtLine(int line) const {
  const auto found =
      std::lower_bound(byLine_.begin(), byLine_.end(), std::pair(line, std::size_t{0}));
  return found == byLine_.end() || found->first != line ? nullptr : &members_[found->second];
}

ModuleSource& SourceCache::of(CodeModule& module) {
  std::unique_ptr<ModuleSource>& source = sources_[&module];
  if (!source) source = std::make_unique<ModuleSource>(module);
  return *source;
}

}  // namespace tamrikon
