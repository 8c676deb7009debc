#include "editor/compose_comment.h"

#include <utility>

#include "base/text.h"
#include "comments/skeleton.h"
#include "comments/word_wrapper.h"

namespace tamrikon {
namespace {

class Composer {
 public:
  explicit Composer(const ProjectSettings& settings) : settings_(settings) {}

  void add(std::string_view text) { addCommentLines(text, lines_, settings_); }
  void addTag(std::string_view tag, std::string_view text) { add(tagLine(tag, text)); }

  /// Leaves out a text of blanks alone; one of empty lines stays.
  void addField(std::string_view tag, std::string_view text) {
    if (!trim(text).empty()) addTag(tag, text);
  }

  void addLinks(std::string_view tag, const FieldList& links) {
    for (const std::string& item : links) {
      const LinkAndLabel parts = splitLinkItem(item);
      addTag(tag, parts.link + " " + parts.label);
    }
  }

  CommentLines take() { return std::move(lines_); }

 private:
  const ProjectSettings& settings_;
  CommentLines lines_;
};

}  // namespace

CommentLines composeComment(const CommentFields& fields, const ProjectSettings& settings) {
  Composer comment(settings);
  comment.add(fields.description);
  comment.addField("@rem", fields.remarks);
  for (const std::string& item : fields.parameters) {
    comment.addTag("@param", itemName(item) + " " + parameterText(item));
  }
  for (const FieldList& list : fields.settingsLists) {
    for (const std::string& item : list) {
      const SettingRow row = settingRow(item);
      comment.addTag("@set", join({row.begin(), row.end()}, " "));
    }
  }
  comment.addField("@return", fields.returns);
  comment.addField("@author", fields.author);
  comment.addField("@version", fields.version);
  comment.addField("@revision", fields.revision);
  if (!trim(fields.includeSource).empty()) comment.add("@includesource yes");
  for (std::size_t i = 0; i < fields.user.size(); ++i) {
    comment.addField("@" + settings.userName[i], fields.user[i]);
  }
  comment.addLinks("@see", fields.seeList);
  comment.addLinks("@example", fields.exampleList);
  comment.addField("@same", fields.sameAs);
  CommentLines lines = comment.take();
  if (settings.wordWrapLength <= 0) return lines;
  return WordWrapper().makeWordWrapping(lines, settings.wordWrapLength);
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
