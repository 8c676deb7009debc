// What the making of a page needs beside the wrapper.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "comments/parsed_comment.h"
#include "model/link_lists.h"
#include "model/wrapper_collections.h"
#include "settings/project_settings.h"
#include "template/macro_table.h"

namespace tamrikon {

struct PageContext {
  MacroTable& macros;
  const TagWords& tagWords;
  const ProjectSettings& settings;
  const WrapperCollections& wrappers;
  LinkLists& lists;
  std::array<std::vector<std::string>, ProjectSettings::kUserTags>
      userTagMacros;  // the names of each tag's macros, as all pages use them
};

}  // namespace tamrikon
