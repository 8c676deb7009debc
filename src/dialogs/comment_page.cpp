#include "dialogs/comment_page.h"

#include <string>
#include <utility>
#include <vector>

#include "dialogs/text_input.h"
#include "settings/user_tag_import.h"
#include "toolkit/toolkit.h"

namespace tamrikon {

UserTagControls::UserTagControls(Dialog& dialog, int number)
    : number(number),
      add(dialog, "Check" + std::to_string(19 + number), "User tag " + std::to_string(number)),
      name(dialog, "Text" + std::to_string(1 + number), "", "User defined name of the tag"),
      defaultText(dialog, "Command" + std::to_string(4 + number), "Default text",
                  "Text that automatically appears as tag value") {}

CommentPage::CommentPage(Dialog& dialog, Session& session, ProjectSettings& copy)
    : dialog_(dialog), session_(session), copy_(copy) {
  for (std::size_t tag = 0; tag < userTags.size(); ++tag) {
    userTags[tag].defaultText.onClick = [this, tag] { editDefault(tag); };
  }
  Command10.onClick = [this] { import(); };
}

void CommentPage::showUserTags(const ProjectSettings& settings) {
  for (std::size_t tag = 0; tag < userTags.size(); ++tag) {
    userTags[tag].add.setChecked(settings.addUser[tag]);
    userTags[tag].name.setText(settings.userName[tag]);
  }
}

void CommentPage::takeUserTags(ProjectSettings& settings) const {
  for (std::size_t tag = 0; tag < userTags.size(); ++tag) {
    settings.addUser[tag] = userTags[tag].add.isChecked();
    settings.userName[tag] = userTags[tag].name.text();
  }
  settings.userDefault = copy_.userDefault;
}

void CommentPage::editDefault(std::size_t tag) {
  TextInput input(dialog_.toolkit());
  input.text = copy_.userDefault[tag];
  input.showModal();
  copy_.userDefault[tag] = input.text;
}

void CommentPage::import() {
  const auto path = dialog_.toolkit().chooseFileToOpen(
      {"Import", "Tamrikon project (*.tamrik)|*.tamrik", "", ""});
  if (!path) return;
  ProjectSettings tags;  // of which the user tags alone count
  takeUserTags(tags);
  if (importUserTags(session_.files, *path, tags) != 0) return;
  showUserTags(tags);
  copy_.userDefault = tags.userDefault;
}

Layout CommentPage::layout() {
  Layout tags = row({
      column({item(Check12), item(Check11), item(Check13), item(Check14), item(Check15)}),
      column({item(Check16), item(Check25), item(Check26), item(Check27), item(Check28)}),
  });
  std::vector<Layout> rows;
  for (UserTagControls& tag : userTags) {
    rows.push_back(row({item(tag.add), item(tag.name).sized(20).growing(), item(tag.defaultText)}));
  }
  Layout user = column({table(std::move(rows)), row({space(), item(Command10)})});
  return column({item(Label4).sized(60), framed(Frame3, std::move(tags)),
                 framed(Frame4, std::move(user)), space()});
}

}  // namespace tamrikon
