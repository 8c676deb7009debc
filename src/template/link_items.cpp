#include "template/link_items.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <numeric>
#include <string>

#include "base/case_folding.h"

namespace tamrikon {
namespace {

constexpr std::string_view kBeforeModule = " (";
constexpr std::string_view kBehindModule = ")";

LinkTarget targetOf(std::string_view reference, LinkResolver* resolver) {
  LinkTarget target;
  if (isFileReference(reference)) {
    target.member = reference.substr(1);
    target.module = kExternalFile;
  } else if (resolver != nullptr) {
    target = resolver->topicOf(reference);
  }
  return target;
}

/// The texts that items are sorted by, one behind the other: few comparisons are made for each, so
/// that it counts how they are built.
class SortKeys {
 public:
  explicit SortKeys(const std::vector<LinkItem>& items) {
    ends_.reserve(items.size());
    for (const LinkItem& item : items) {
      appendLowered(texts_, item.label);
      texts_ += '\r';
      appendNumber(item.target.helpId);
      ends_.push_back(texts_.size());
    }
  }

  std::string_view operator[](std::size_t n) const {
    const std::size_t start = n == 0 ? 0 : ends_[n - 1];
    return std::string_view(texts_).substr(start, ends_[n] - start);
  }

 private:
  void appendNumber(int number) {
    std::array<char, 16> digits;
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number);
    texts_.append(digits.data(), end.ptr);
  }

  std::string texts_;
  std::vector<std::size_t> ends_;
};

}  // namespace

std::size_t LinkItems::LabelParts::length() const {
  const std::size_t brackets = kBeforeModule.size() + kBehindModule.size();
  return name.size() + (module.empty() ? 0 : module.size() + brackets) + word.size();
}

void LinkItems::add(const LinkItem& item, const LabelParts& label) {
  items_.push_back(item);
  if (label.length() > 0) {
    parts_.push_back(label);
    return;
  }
  const LinkTarget& target = item.target;
  const bool isModule = target.member.empty();
  parts_.push_back({isModule ? target.module : target.member,
                    target.needsModule && !isModule ? target.module : std::string_view(),
                    {}});
}

bool LinkItems::addText(std::string_view text, LinkResolver* resolver) {
  const std::size_t cr = text.find('\r');
  if (cr == std::string_view::npos) return false;
  const std::string_view reference = text.substr(0, cr);
  add({reference, targetOf(reference, resolver), {}}, {text.substr(cr + 1), {}, {}});
  return true;
}

void LinkItems::addTopic(const TopicItem& topic, LinkResolver* resolver) {
  NamedLink link;
  if (resolver != nullptr) link = resolver->linkOf(topic.wrapper);
  LabelParts label;
  if (topic.hasLabel) {
    label = {link.name, link.needsModule ? link.module : std::string_view(), topic.word};
  }
  add({link.link, link.target, {}}, label);
}

void LinkItems::makeLabels() {
  std::size_t length = 0;
  for (const LabelParts& label : parts_) length += label.isName() ? 0 : label.length();
  labels_.reserve(length);  // the labels are views of it
  const auto append = [&](std::string_view part) {
    labels_.insert(labels_.end(), part.begin(), part.end());
  };
  for (std::size_t n = 0; n < items_.size(); ++n) {
    const LabelParts& label = parts_[n];
    items_[n].label = label.name;
    if (label.isName()) continue;
    const std::size_t start = labels_.size();
    append(label.name);
    if (!label.module.empty()) {
      append(kBeforeModule);
      append(label.module);
      append(kBehindModule);
    }
    append(label.word);
    items_[n].label = {labels_.data() + start, labels_.size() - start};
  }
  parts_ = {};
}

bool LinkItems::sort(const MacroList& list, LinkResolver* resolver) {
  items_.reserve(list.size());
  parts_.reserve(list.size());
  for (const std::string_view text : list.texts) {
    if (!addText(text, resolver)) return false;
  }
  for (const TopicItem& topic : list.topics) addTopic(topic, resolver);
  makeLabels();
  if (items_.size() < 2) return true;
  const SortKeys keys(items_);
  order_.resize(items_.size());
  std::iota(order_.begin(), order_.end(), 0U);
  std::sort(order_.begin(), order_.end(), [&](std::uint32_t a, std::uint32_t b) {
    const int difference = keys[a].compare(keys[b]);
    return difference != 0 ? difference < 0 : a < b;
  });
  return true;
}

}  // namespace tamrikon
