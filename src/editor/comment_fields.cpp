#include "editor/comment_fields.h"

#include <memory>

#include "comments/comment_parser.h"

namespace tamrikon {
namespace {

/// A parser that ignores no indents. It reads nothing else of the settings but the user tags.
class IndentKeepingParser {
 public:
  IndentKeepingParser(const Comment& lines, const ProjectSettings& settings) {
    reading_.userName = settings.userName;
    reading_.indentMode = 0;
    parser_.setComment(std::make_shared<Comment>(lines));
  }
  IndentKeepingParser(const IndentKeepingParser&) = delete;
  IndentKeepingParser& operator=(const IndentKeepingParser&) = delete;

  const CommentParser* operator->() const { return &parser_; }

 private:
  ProjectSettings reading_;
  CommentParser parser_{reading_};
};

}  // namespace

CommentFields parseIntoFields(const Comment& comment, const ProjectSettings& settings) {
  const IndentKeepingParser parser(comment, settings);
  const auto text = [&](const std::string& value) { return convertFieldText(value, settings); };
  CommentFields fields;
  std::string description = parser->getDescription();
  if (description.ends_with('\r')) description.pop_back();
  fields.description = text(description);
  fields.remarks = text(parser->getRemarks());
  fields.version = text(parser->getVersion());
  fields.author = text(parser->getAuthor());
  fields.revision = text(parser->getRevision());
  for (std::size_t i = 0; i < fields.user.size(); ++i)
    fields.user[i] = text(parser->getUser(i + 1));
  fields.sameAs = text(parser->getSame());
  fields.returns = text(parser->getReturn());
  fields.includeSource = text(parser->getIncludeSource());
  fields.seeList = formatLinkList(parser->getSeeList());
  fields.exampleList = formatLinkList(parser->getExampleList());
  fields.parameters = convertListItems(parser->getParamList(), 1, settings);
  const auto settingsLists = parser->getSettingsList();
  for (std::size_t i = 0; i < settingsLists.size(); ++i) {
    fields.settingsLists[i] = convertListItems(settingsLists[i], 3, settings);
  }
  return fields;
}

std::vector<CommentLines> commentBlocks(const CommentLines& body, const ProjectSettings& settings) {
  std::vector<CommentLines> blocks;
  std::size_t start = 0;
  std::vector<std::size_t> ends = IndentKeepingParser(body, settings)->tagLines();
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
  const IndentKeepingParser parser(generatedLines, settings);
  return {convertListItems(parser->getParamList(), 1, settings),
          convertFieldText(parser->getReturn(), settings)};
}

}  // namespace tamrikon
