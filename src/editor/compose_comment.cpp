#include "editor/compose_comment.h"

#include <utility>

#include "base/text.h"
#include "comments/skeleton.h"
#include "comments/word_wrapper.h"

namespace tamrikon {

std::vector<FieldItem> fieldItems(const CommentFields& fields, const ProjectSettings& settings) {
  std::vector<FieldItem> items;
  const auto add = [&](std::string tag, const std::string& value, std::string text) {
    items.push_back({std::move(tag), value, std::move(text)});
  };
  // Leaves out a text of blanks alone; one of empty lines stays.
  const auto addField = [&](std::string tag, const std::string& text) {
    if (!trim(text).empty()) add(std::move(tag), text, text);
  };
  const auto addLinks = [&](const char* tag, const FieldList& links) {
    for (const std::string& item : links) {
      const LinkAndLabel parts = splitLinkItem(item);
      add(tag, item, parts.link + " " + parts.label);
    }
  };
  if (!fields.description.empty()) add("", fields.description, fields.description);
  addField("@rem", fields.remarks);
  for (const std::string& item : fields.parameters) {
    add("@param", item, itemName(item) + " " + parameterText(item));
  }
  for (const FieldList& list : fields.settingsLists) {
    for (const std::string& item : list) {
      const SettingRow row = settingRow(item);
      add("@set", item, join({row.begin(), row.end()}, " "));
    }
  }
  addField("@return", fields.returns);
  addField("@author", fields.author);
  addField("@version", fields.version);
  addField("@revision", fields.revision);
  if (!trim(fields.includeSource).empty()) add("@includesource", fields.includeSource, "yes");
  for (std::size_t i = 0; i < fields.user.size(); ++i) {
    addField("@" + settings.userName[i], fields.user[i]);
  }
  addLinks("@see", fields.seeList);
  addLinks("@example", fields.exampleList);
  addField("@same", fields.sameAs);
  return items;
}

CommentLines composeItem(const FieldItem& item, const ProjectSettings& settings) {
  CommentLines lines;
  addCommentLines(item.tag.empty() ? item.text : tagLine(item.tag, item.text), lines, settings);
  if (settings.wordWrapLength <= 0) return lines;
  return WordWrapper().makeWordWrapping(lines, settings.wordWrapLength);
}

CommentLines composeComment(const CommentFields& fields, const ProjectSettings& settings) {
  CommentLines lines;
  for (const FieldItem& item : fieldItems(fields, settings)) {
    for (std::string& line : composeItem(item, settings)) lines.push_back(std::move(line));
  }
  return lines;
}

void addCommentLines(std::string_view text, CommentLines& lines, const ProjectSettings& settings) {
  if (text.empty()) return;
  const std::string_view mark = settings.autoInsertEOL == 1 ? "$EOL$" : "";
  for (;;) {
    const std::size_t end = text.find("\r\n");
    if (end == std::string_view::npos) break;
    lines.push_back(std::string(text.substr(0, end)).append(mark));
    text.remove_prefix(end + 2);
  }
  lines.emplace_back(text);
}

std::string CollectionToCommentString(const CommentLines& lines) {
  std::string text = "'**";
  for (const std::string& line : lines) text.append("\r\n'").append(line);
  return text;
}

}  // namespace tamrikon
