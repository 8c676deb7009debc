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
  std::string key;  // the link, or a double quote and the name of a file
  std::string label;
  int helpId = 0;
};

/// Whether `reference` names a file: then the rest behind its double quote is the name.
inline bool isFileReference(std::string_view reference) {
  return reference.starts_with('"');
}

/// Where links to a file are said to lead.
inline constexpr std::string_view kExternalFile = "External file";

/// The items of `list` with links resolved and empty labels made, by label and then help id as
/// texts without regard to case; equal ones keep their order. Null: links lead nowhere. Empty if
/// an item lacks its CR.
std::optional<std::vector<LinkItem>> sortLinkItems(const MacroList& list, LinkResolver* resolver);

}  // namespace tamrikon
