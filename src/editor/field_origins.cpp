#include "editor/field_origins.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "base/text.h"
#include "editor/comment_fields.h"

namespace tamrikon {
namespace {

std::string keyOf(const FieldItem& item) {
  return item.tag + '\r' + item.value;
}

/// Whether the parser reads nothing but the line of the tag. If that is divided, its end is lost.
bool isOneLine(const FieldItem& item) {
  return item.tag == "@see" || item.tag == "@example" || item.tag == "@same" ||
         item.tag == "@includesource";
}

}  // namespace

FieldOrigins::FieldOrigins(const CommentLines& body, const ProjectSettings& settings)
    : body_(body), items_(fieldItems(parseIntoFields(body, settings), settings)) {
  std::unordered_map<std::string, std::size_t> unclaimed;
  for (const FieldItem& item : items_) ++unclaimed[keyOf(item)];
  for (const CommentLines& block : commentBlocks(body, settings)) {
    std::vector<FieldItem> read = fieldItems(parseIntoFields(block, settings), settings);
    std::erase_if(read, [&](const FieldItem& item) {
      std::size_t& left = unclaimed[keyOf(item)];
      if (left == 0) return true;
      --left;
      return false;
    });
    if (read.empty()) {
      const CommentLines firstLine(block.begin(), block.begin() + 1);
      const bool isTagAlone = fieldItems(parseIntoFields(firstLine, settings), settings).empty();
      addUnread(block, isTagAlone ? 1 : 0);
      continue;
    }
    const bool isRest = std::all_of(read.begin(), read.end(), isOneLine);
    if (isRest) addUnread(block, 1);
    // A line that counts for two tags becomes a line for each.
    if (read.size() > 1) continue;
    const std::size_t size = isRest ? 1 : block.size();
    origins_[keyOf(read.front())].emplace_back(block.begin(),
                                               block.begin() + static_cast<std::ptrdiff_t>(size));
  }
}

void FieldOrigins::addUnread(const CommentLines& lines, std::size_t first) {
  std::copy_if(lines.begin() + static_cast<std::ptrdiff_t>(first), lines.end(),
               std::back_inserter(unread_),
               [](const std::string& line) { return !trim(line).empty(); });
}

std::vector<FieldOrigins::Part> FieldOrigins::partsOf(const CommentFields& fields,
                                                      const ProjectSettings& settings,
                                                      bool laysOutAll) const {
  std::vector<Part> parts;
  std::unordered_map<std::string, std::size_t> used;
  for (FieldItem& item : fieldItems(fields, settings)) {
    const std::string key = keyOf(item);
    const auto origin = origins_.find(key);
    const bool isKept = origin != origins_.end() && (!laysOutAll || isOneLine(item)) &&
                        used[key] < origin->second.size();
    CommentLines lines = isKept ? origin->second[used[key]++] : composeItem(item, settings);
    parts.push_back({std::move(item), std::move(lines)});
  }
  return parts;
}

CommentLines FieldOrigins::compose(const CommentFields& fields, const ProjectSettings& settings,
                                   bool laysOutAll) const {
  if (!laysOutAll && !body_.empty() && fieldItems(fields, settings) == items_) return body_;
  CommentLines lines;
  for (const Part& part : partsOf(fields, settings, laysOutAll)) {
    lines.insert(lines.end(), part.lines.begin(), part.lines.end());
  }
  return lines;
}

FieldOrigins FieldOrigins::written(const CommentFields& fields, const ProjectSettings& settings,
                                   bool laysOutAll) const {
  FieldOrigins result;
  for (Part& part : partsOf(fields, settings, laysOutAll)) {
    result.body_.insert(result.body_.end(), part.lines.begin(), part.lines.end());
    result.origins_[keyOf(part.item)].push_back(std::move(part.lines));
    result.items_.push_back(std::move(part.item));
  }
  return result;
}

}  // namespace tamrikon
