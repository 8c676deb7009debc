#include "dialogs/compile_page.h"

#include <utility>
#include <vector>

namespace tamrikon {

CompilePage::CompilePage(Dialog& dialog) : dialog_(dialog) {
  ListView1.onItemCheck = [this](int index) {
    setChosen(static_cast<std::size_t>(index), ListView1.isChecked(index));
  };
  Command2.onClick = [this] { setAllChosen(true); };
  Command3.onClick = [this] { setAllChosen(false); };
}

void CompilePage::showModules(const KeyedList<CodeModule*>& all,
                              const KeyedList<CodeModule*>& chosen) {
  modules_.fill(all, chosen);
  std::vector<CheckList::Item> items;
  items.reserve(modules_.size());
  for (std::size_t index = 0; index < modules_.size(); ++index) {
    items.push_back({modules_.name(index), modules_.isChosen(index)});
  }
  ListView1.setItems(std::move(items));
}

void CompilePage::setChosen(std::size_t index, bool chosen) {
  if (chosen) {
    modules_.choose(index);
  } else {
    modules_.drop(index);
  }
}

void CompilePage::setAllChosen(bool chosen) {
  for (std::size_t index = 0; index < modules_.size(); ++index) {
    ListView1.setChecked(static_cast<int>(index), chosen);
    setChosen(index, chosen);
  }
}

Layout CompilePage::layout() {
  // Whose members, which modules, which kinds of members.
  Layout boxes = row({
      column({item(Check1), item(Check2), item(Check3), item(Check4), space()}),
      column({item(Check5), item(Check6), item(Check7), space(), item(Check17)}),
      column({item(Check8), item(Check9), item(Check10), item(Check18), item(Check19)}),
  });
  Layout modules = column({
      item(Label1),
      item(Label2),
      item(ListView1).sized(92, 8).growing(),
      row({item(Command2), item(Command3), space()}),
  });
  return column({framed(Frame1, std::move(boxes)), item(Check29),
                 framed(Frame2, std::move(modules)).growing()});
}

}  // namespace tamrikon
