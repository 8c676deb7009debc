#include "editor/member_entries.h"

#include <unordered_set>
#include <utility>

#include "base/text.h"

namespace tamrikon {

std::vector<std::string> memberEntries(const CodeModule& module) {
  std::vector<std::string> entries{std::string(kModuleEntry)};
  std::unordered_set<std::string> seen;
  const auto add = [&](std::string entry) {
    if (seen.insert(entry).second) entries.push_back(std::move(entry));
  };
  constexpr std::pair<ProcKind, std::string_view> kProcedures[] = {
      {ProcKind::let, kLetEnding}, {ProcKind::set, kSetEnding}, {ProcKind::get, kGetEnding}};
  const Members& members = module.Members();
  for (int number = 1; number <= members.Count(); ++number) {
    const Member& member = members.Item(number);
    const std::string name = member.Name();
    if (member.Type() != MemberType::property) {
      add(name);
      continue;
    }
    for (const auto& procedure : kProcedures) {
      const bool isThere = tryStep([&] { module.ProcBodyLine(name, procedure.first); });
      if (isThere) add(name + std::string(procedure.second));
    }
  }
  return entries;
}

std::string_view endingOfSuffix(std::string_view suffix) {
  if (suffix == "'set") return kSetEnding;
  if (suffix == "'let") return kLetEnding;
  return kGetEnding;
}

std::string linkToEntry(const std::string& module, const std::string& entry,
                        const std::string& ownModule) {
  if (entry == kModuleEntry) return module;
  const std::size_t bracket = entry.find('[');
  std::string link = module == ownModule ? "" : module;
  link.append(".").append(trim(std::string_view(entry).substr(0, bracket)));
  if (bracket == std::string::npos) return link;
  const std::string_view kind = std::string_view(entry).substr(bracket);
  return link += kind == "[PropertySet]" ? "'set" : kind == "[PropertyLet]" ? "'let" : "'get";
}

}  // namespace tamrikon
