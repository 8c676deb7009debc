#include "template/link_items.h"

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <utility>

#include "base/case_folding.h"

namespace tamrikon {
namespace {

std::string madeLabel(const LinkTarget& target) {
  if (target.member.empty()) return target.module;
  if (target.wrapper == nullptr || !target.needsModule) return target.member;
  return target.member + " (" + target.module + ")";
}

LinkItem linkItem(std::string_view reference, std::string_view label, LinkResolver* resolver) {
  LinkItem item;
  LinkTarget target;
  if (isFileReference(reference)) {
    item.key = reference;
    target.member = reference.substr(1);
    target.module = kExternalFile;
  } else if (resolver == nullptr) {
    item.key = reference;
  } else {
    item.key = resolver->canonizeLink(reference);
    if (std::optional<std::string> topic = resolver->topicLink(item.key)) item.key = *topic;
    target = resolver->parseLink(item.key);
  }
  item.label = label.empty() ? madeLabel(target) : label;
  item.helpId = target.wrapper == nullptr ? 0 : target.helpId;
  return item;
}

}  // namespace

std::optional<std::vector<LinkItem>> sortLinkItems(const MacroList& list, LinkResolver* resolver) {
  struct Keyed {
    std::string sortKey;
    LinkItem item;
  };
  std::vector<Keyed> keyed;
  keyed.reserve(list.size());
  for (const std::string_view text : list) {
    const std::size_t cr = text.find('\r');
    if (cr == std::string_view::npos) return std::nullopt;
    LinkItem item = linkItem(text.substr(0, cr), text.substr(cr + 1), resolver);
    std::string sortKey = lowered(item.label + '\r' + std::to_string(item.helpId));
    keyed.push_back({std::move(sortKey), std::move(item)});
  }
  std::stable_sort(keyed.begin(), keyed.end(),
                   [](const Keyed& a, const Keyed& b) { return a.sortKey < b.sortKey; });
  std::vector<LinkItem> items;
  items.reserve(keyed.size());
  for (Keyed& entry : keyed) items.push_back(std::move(entry.item));
  return items;
}

}  // namespace tamrikon
