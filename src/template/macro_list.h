// The value of a list macro: what a DOLIST walks.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "template/topic_id.h"

namespace tamrikon {

/// An item that names its topic itself. The template sees it as an item with a link and, if it has
/// a label, the name of the topic, with its module where the name alone is ambiguous, and `word`.
struct TopicItem {
  TopicId id;  // none: it has no topic, which causes no warning
  bool hasLabel = false;
  std::string_view word = {};  // lives as long as the program
};

/// Either texts or topics. Lists of a whole project are lists of topics: neither do their texts
/// take memory, nor are their links looked up.
struct MacroList {
  std::vector<std::string> texts;  // the fields of an item divided by CR
  std::vector<TopicItem> topics = {};
  bool isGenerated = false;  // the texts are of no comment: where comments are limited, none calls

  std::size_t size() const { return texts.size() + topics.size(); }
  bool empty() const { return texts.empty() && topics.empty(); }
};

}  // namespace tamrikon
