#include "editor/interest_links.h"

#include <utility>

#include "editor/source_code_parser.h"

namespace tamrikon {

InterestLinks::InterestLinks(Toolkit& toolkit, const Wrapper& member, const VBE& VBInstance)
    : Dialog(toolkit, "InterestLinks", "Interesting references"),
      member_(member),
      ide_(VBInstance) {
  OKButton.setRole(ButtonRole::default_);
  CancelButton.setRole(ButtonRole::cancel);
  OKButton.onClick = [this] {
    for (const CheckList::Item& item : List1.items()) {
      if (item.checked) chosen.push_back(item.text);
    }
    close();
  };
  CancelButton.onClick = [this] { close(); };
}

void InterestLinks::onLoad() {
  std::vector<CheckList::Item> items;
  for (std::string& line : findProposals(member_, ide_)) items.push_back({std::move(line), true});
  List1.setItems(std::move(items));
}

Layout InterestLinks::layout() {
  return column({labelled(Label1, item(List1).sized(50, 10).growing()).growing(),
                 row({space(), item(OKButton), item(CancelButton)})});
}

}  // namespace tamrikon
