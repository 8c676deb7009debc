#include "editor/text_pages.h"

#include <string>
#include <utility>
#include <vector>

namespace tamrikon {
namespace {

/// Every field can have several lines, also where one is the rule.
Layout labelledText(Label& label, TextBox& box, int lines) {
  return labelled(label, item(box).sized(60, lines).growing()).growing();
}

}  // namespace

BasicPage::BasicPage(Dialog& dialog, CommentFields& fields, FieldBoxes& boxes) : dialog_(dialog) {
  DescriptionText.setMultiLine(true);
  RemarksText.setMultiLine(true);
  boxes.add(DescriptionText, fields.description);
  boxes.add(RemarksText, fields.remarks);
}

Layout BasicPage::layout() {
  return column({labelledText(DescriptionLabel, DescriptionText, 8),
                 labelledText(RemarksLabel, RemarksText, 8)});
}

AuthorPage::AuthorPage(Dialog& dialog, CommentFields& fields, FieldBoxes& boxes)
    : dialog_(dialog), fields_(fields) {
  for (TextBox* box : {&AuthorText, &VersionText, &RevisionText}) box->setMultiLine(true);
  boxes.add(AuthorText, fields.author);
  boxes.add(VersionText, fields.version);
  boxes.add(RevisionText, fields.revision);
  IncludeSourceCode.onClick = [this] {
    fields_.includeSource = IncludeSourceCode.isChecked() ? "yes" : "";
  };
}

void AuthorPage::show() {
  IncludeSourceCode.setChecked(!fields_.includeSource.empty());
}

Layout AuthorPage::layout() {
  return column({labelledText(AuthorLabel, AuthorText, 3),
                 labelledText(VersionLabel, VersionText, 3),
                 labelledText(RevisionLabel, RevisionText, 3), item(IncludeSourceCode)});
}

UserField::UserField(Dialog& dialog, int number)
    : label(dialog, "User" + std::to_string(number) + "Label"),
      text(dialog, "User" + std::to_string(number) + "Text") {
  text.setMultiLine(true);
}

UserPage::UserPage(Dialog& dialog, CommentFields& fields, FieldBoxes& boxes)
    : users{{{dialog, 1}, {dialog, 2}, {dialog, 3}, {dialog, 4}, {dialog, 5}}} {
  for (std::size_t i = 0; i < users.size(); ++i) boxes.add(users[i].text, fields.user[i]);
}

void UserPage::show(const ProjectSettings& settings) {
  for (std::size_t i = 0; i < users.size(); ++i) users[i].label.setCaption(settings.userName[i]);
}

Layout UserPage::layout() {
  std::vector<Layout> parts;
  for (UserField& user : users) parts.push_back(labelledText(user.label, user.text, 2));
  return column(std::move(parts));
}

SourcePage::SourcePage(Dialog& dialog) : dialog_(dialog) {
  SourceView.setMultiLine(true);
  SourceView.setFixedFont(true);
  SourceView.setReadOnly(true);
}

Layout SourcePage::layout() {
  return column({item(SourceView).sized(84, 18).growing(), row({space(), item(Command1)})});
}

}  // namespace tamrikon
