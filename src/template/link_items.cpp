#include "template/link_items.h"

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <utility>

#include "base/case_folding.h"

namespace tamrikon {
namespace {

std::string madeLabel(const LinkTarget& target) {
  if (target.member.empty()) return std::string(target.module);
  std::string label(target.member);
  if (target.needsModule) label.append(" (").append(target.module).append(")");
  return label;
}

LinkItem linkItem(std::string_view reference, std::string_view label, LinkResolver* resolver) {
  LinkItem item;
  item.reference = reference;
  if (isFileReference(reference)) {
    item.target.member = reference.substr(1);
    item.target.module = kExternalFile;
  } else if (resolver != nullptr) {
    item.target = resolver->topicOf(reference);
  }
  item.label = label.empty() ? madeLabel(item.target) : std::string(label);
  return item;
}

}  // namespace

std::optional<std::vector<LinkItem>> sortLinkItems(const MacroList& list, LinkResolver* resolver) {
  std::vector<LinkItem> items;
  items.reserve(list.size());
  for (const std::string_view text : list) {
    const std::size_t cr = text.find('\r');
    if (cr == std::string_view::npos) return std::nullopt;
    items.push_back(linkItem(text.substr(0, cr), text.substr(cr + 1), resolver));
  }
  if (items.size() < 2) return items;
  struct Keyed {
    std::string sortKey;
    std::size_t position;
  };
  std::vector<Keyed> keyed;
  keyed.reserve(items.size());
  for (const LinkItem& item : items) {
    std::string sortKey = lowered(item.label);
    sortKey.append("\r").append(std::to_string(item.target.helpId));
    keyed.push_back({std::move(sortKey), keyed.size()});
  }
  std::stable_sort(keyed.begin(), keyed.end(),
                   [](const Keyed& a, const Keyed& b) { return a.sortKey < b.sortKey; });
  std::vector<LinkItem> sorted;
  sorted.reserve(items.size());
  for (const Keyed& entry : keyed) sorted.push_back(std::move(items[entry.position]));
  return sorted;
}

}  // namespace tamrikon
