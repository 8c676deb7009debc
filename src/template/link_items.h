// The items of a link list, made ready for a walk.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "template/link_resolver.h"
#include "template/macro_list.h"

namespace tamrikon {

struct LinkItem {
  std::string_view reference;  // of the list's item: a link, or a double quote and a file's name
  LinkTarget target;           // the topic that serves it; of a file, its name
  std::string_view label;
  bool isOfProgram = false;  // nobody wrote the link
  bool isOwnLabel = false;  // the list's item has it; otherwise it was made up
};

/// Whether `reference` names a file: then the rest behind its double quote is the name.
inline bool isFileReference(std::string_view reference) {
  return reference.starts_with('"');
}

/// Where links to a file are said to lead.
inline constexpr std::string_view kExternalFile = "External file";

/// Holds views of the list that it was made of, and of what the resolver's targets name.
class LinkItems {
 public:
  /// Takes the items of `list` with links resolved and empty labels made, by label and then help id
  /// as texts without regard to case; equal ones keep their order. Without a resolver links lead
  /// nowhere. False if an item lacks its CR.
  bool sort(const MacroList& list, LinkResolver* resolver);

  std::size_t size() const { return items_.size(); }
  const LinkItem& operator[](std::size_t n) const { return items_[order_.empty() ? n : order_[n]]; }

 private:
  // What a label has behind its name.
  struct LabelTail {
    std::uint32_t item;
    std::string_view module;  // empty if it isn't told
    std::string_view word;
  };

  bool addText(std::string_view text, LinkResolver* resolver);
  void addTopic(const TopicItem& topic, LinkResolver* resolver);
  void addTail(std::string_view module, std::string_view word);
  void makeUpLabel();
  void joinLabels();

  std::vector<LinkItem> items_;
  std::vector<std::uint32_t> order_;  // empty if the items stand in it
  std::vector<LabelTail> tails_;
  std::vector<char> labels_;  // those with tails, one behind the other
};

}  // namespace tamrikon
