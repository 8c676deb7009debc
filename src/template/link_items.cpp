#include "template/link_items.h"

#include <array>
#include <charconv>

#include "base/sort_keys.h"

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

/// By label and then help id, as texts.
std::vector<std::uint32_t> sortedOrder(const std::vector<LinkItem>& items) {
  constexpr std::size_t kFairNumber = 8;  // its length, with the CR before it
  std::size_t length = 0;
  for (const LinkItem& item : items) length += item.label.size() + kFairNumber;
  SortKeys keys;
  keys.reserve(items.size(), length);
  for (const LinkItem& item : items) {
    std::array<char, 16> number{'\r'};
    char* const end = number.data() + number.size();
    const auto written = std::to_chars(number.data() + 1, end, item.target.helpId);
    keys.append(item.label);
    keys.append({number.data(), static_cast<std::size_t>(written.ptr - number.data())});
    keys.endKey();
  }
  return keys.order();
}

}  // namespace

void LinkItems::addTail(std::string_view module, std::string_view word) {
  if (module.empty() && word.empty()) return;
  tails_.push_back({static_cast<std::uint32_t>(items_.size() - 1), module, word});
}

/// Gives the last item the label that one without a label gets.
void LinkItems::makeUpLabel() {
  LinkItem& item = items_.back();
  const LinkTarget& target = item.target;
  const bool isModule = target.member.empty();
  item.label = isModule ? target.module : target.member;
  if (target.needsModule && !isModule) addTail(target.module, {});
}

bool LinkItems::addText(std::string_view text, LinkResolver* resolver) {
  const std::size_t cr = text.find('\r');
  if (cr == std::string_view::npos) return false;
  const std::string_view reference = text.substr(0, cr);
  items_.push_back({reference, targetOf(reference, resolver), text.substr(cr + 1)});
  items_.back().isOwnLabel = !items_.back().label.empty();
  if (!items_.back().isOwnLabel) makeUpLabel();
  return true;
}

void LinkItems::addTopic(const TopicItem& topic, LinkResolver* resolver) {
  NamedLink link;
  if (resolver != nullptr && topic.id != TopicId::none) link = resolver->linkOf(topic.id);
  items_.push_back({link.link, link.target, link.name, true});
  if (topic.hasLabel) {
    addTail(link.needsModule ? link.module : std::string_view(), topic.word);
  } else {
    makeUpLabel();
  }
}

void LinkItems::joinLabels() {
  const std::size_t brackets = kBeforeModule.size() + kBehindModule.size();
  std::size_t length = 0;
  for (const LabelTail& tail : tails_) {
    length += items_[tail.item].label.size() + tail.module.size() + brackets + tail.word.size();
  }
  labels_.reserve(length);  // the labels are views of it
  const auto append = [&](std::string_view part) {
    labels_.insert(labels_.end(), part.begin(), part.end());
  };
  for (const LabelTail& tail : tails_) {
    const std::size_t start = labels_.size();
    append(items_[tail.item].label);
    if (!tail.module.empty()) {
      append(kBeforeModule);
      append(tail.module);
      append(kBehindModule);
    }
    append(tail.word);
    items_[tail.item].label = {labels_.data() + start, labels_.size() - start};
  }
  tails_ = {};
}

bool LinkItems::sort(const MacroList& list, LinkResolver* resolver) {
  items_.reserve(list.size());
  for (const std::string_view text : list.texts) {
    if (!addText(text, resolver)) return false;
  }
  for (const TopicItem& topic : list.topics) addTopic(topic, resolver);
  joinLabels();
  if (items_.size() > 1) order_ = sortedOrder(items_);
  return true;
}

}  // namespace tamrikon
