// What the making of a page needs beside the wrapper.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "comments/comment_parser.h"
#include "model/link_lists.h"
#include "model/wrapper_collections.h"
#include "settings/project_settings.h"
#include "template/macro_table.h"

namespace tamrikon {

struct PageContext {
  MacroTable& macros;
  CommentParser& parser;  // one for all pages: nobody may expect it to keep a comment
  const ProjectSettings& settings;
  const WrapperCollections& wrappers;
  LinkLists& lists;
  std::array<std::vector<std::string>, ProjectSettings::kUserTags>
      userTagMacros;  // the names of each tag's macros, as all pages use them
};

}  // namespace tamrikon
