#include "editor/comment_fields.h"

#include <memory>

#include "comments/parsed_comment.h"

namespace tamrikon {
namespace {

ParsedComment parseWithIndents(const Comment& comment, const TagWords& words) {
  return parseComment(std::make_shared<Comment>(comment), words, Indents::kept);
}

}  // namespace

CommentFields parseIntoFields(const Comment& comment, const ProjectSettings& settings) {
  const TagWords words(settings.userName);
  const ParsedComment parsed = parseWithIndents(comment, words);
  const auto text = [&](const std::string& value) { return convertFieldText(value, settings); };
  CommentFields fields;
  std::string description = parsed.getDescription();
  if (description.ends_with('\r')) description.pop_back();
  fields.description = text(description);
  fields.remarks = text(parsed.getRemarks());
  fields.version = text(parsed.getVersion());
  fields.author = text(parsed.getAuthor());
  fields.revision = text(parsed.getRevision());
  for (std::size_t i = 0; i < fields.user.size(); ++i) fields.user[i] = text(parsed.getUser(i + 1));
  fields.sameAs = text(parsed.getSame());
  fields.returns = text(parsed.getReturn());
  fields.includeSource = text(parsed.getIncludeSource());
  fields.seeList = formatLinkList(parsed.getSeeList());
  fields.exampleList = formatLinkList(parsed.getExampleList());
  fields.parameters = convertListItems(parsed.getParamList(), 1, settings);
  const auto settingsLists = parsed.getSettingsList();
  for (std::size_t i = 0; i < settingsLists.size(); ++i) {
    fields.settingsLists[i] = convertListItems(settingsLists[i], 3, settings);
  }
  return fields;
}

std::vector<CommentLines> commentBlocks(const CommentLines& body, const ProjectSettings& settings) {
  std::vector<CommentLines> blocks;
  std::size_t start = 0;
  const TagWords words(settings.userName);
  std::vector<std::size_t> ends = parseWithIndents(body, words).tagLines();
  ends.push_back(body.size());
  for (const std::size_t end : ends) {
    if (end > start) {
      blocks.emplace_back(body.begin() + static_cast<std::ptrdiff_t>(start),
                          body.begin() + static_cast<std::ptrdiff_t>(end));
    }
    start = end;
  }
  return blocks;
}

GeneratedFields parseGeneratedFields(const CommentLines& generatedLines,
                                     const ProjectSettings& settings) {
  const TagWords words(settings.userName);
  const ParsedComment parsed = parseWithIndents(generatedLines, words);
  return {convertListItems(parsed.getParamList(), 1, settings),
          convertFieldText(parsed.getReturn(), settings)};
}

}  // namespace tamrikon
