// The items of a link list, made ready for a walk.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "template/link_resolver.h"
#include "template/macro_list.h"

namespace tamrikon {

struct LinkItem {
  std::string_view reference;  // of the list's item: a link, or a double quote and a file's name
  LinkTarget target;           // the topic that serves it; of a file, its name
  std::string label;
};

/// Whether `reference` names a file: then the rest behind its double quote is the name.
inline bool isFileReference(std::string_view reference) {
  return reference.starts_with('"');
}

/// Where links to a file are said to lead.
inline constexpr std::string_view kExternalFile = "External file";

/// The items of `list` with links resolved and empty labels made, by label and then help id as
/// texts without regard to case; equal ones keep their order. Without a resolver links lead
/// nowhere. Empty if an item lacks its CR. The items hold views of `list`.
std::optional<std::vector<LinkItem>> sortLinkItems(const MacroList& list, LinkResolver* resolver);

}  // namespace tamrikon
