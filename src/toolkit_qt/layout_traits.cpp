#include "toolkit_qt/layout_traits.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "toolkit/buttons.h"
#include "toolkit/folder_tree.h"
#include "toolkit/list_controls.h"
#include "toolkit/value_controls.h"

namespace tamrikon {
namespace {

using Kind = Layout::Kind;

constexpr int kNumber = 12;  // characters; a box for more takes what the dialog is wide

template <typename T>
const T* as(const Layout& part) {
  return part.kind == Kind::control ? dynamic_cast<const T*>(part.control) : nullptr;
}

template <typename... Types>
bool isAny(const Layout& part) {
  return ((as<Types>(part) != nullptr) || ...);
}

bool anyChild(const Layout& part, bool (*test)(const Layout&)) {
  return std::any_of(part.children.begin(), part.children.end(), test);
}

}  // namespace

bool isTall(const Layout& part) {
  if (const auto* box = as<TextBox>(part)) return box->isMultiLine();
  return isAny<ListBox, CheckList, Grid, FolderTree>(part) || anyChild(part, isTall);
}

bool growsDown(const Layout& part) {
  // Growing frames without a list in them share the width of their row.
  if (part.grows && isTall(part)) return true;
  return anyChild(part, growsDown);
}

bool growsAcross(const Layout& part) {
  return part.grows || anyChild(part, growsAcross);
}

bool keepsWidth(const Layout& part) {
  if (isSpinPair(part)) return keepsWidth(part.children.front());
  if (part.grows || part.kind != Kind::control) return false;
  return part.characters > 0 && part.characters <= kNumber && isAny<TextBox, ComboBox>(part) &&
         !isTall(part);
}

bool takesWidth(const Layout& part) {
  if (part.kind == Kind::space || part.grows) return true;
  if (part.kind == Kind::frame || part.kind == Kind::tabs) return true;
  if (part.kind != Kind::control) return anyChild(part, takesWidth);
  if (isAny<TextBox, ComboBox>(part) && !isTall(part)) return part.characters == 0;
  return isTall(part) || isAny<StatusBar, ProgressIndicator>(part);
}

bool isButton(const Layout& part) {
  return isAny<CommandButton>(part);
}

bool isButtonRow(const Layout& part) {
  if (part.kind != Kind::row || !anyChild(part, isButton)) return false;
  return std::all_of(part.children.begin(), part.children.end(), [](const Layout& child) {
    return child.kind == Kind::space || isButton(child);
  });
}

bool isSpinPair(const Layout& part) {
  if (part.kind != Kind::row || part.children.size() != 2) return false;
  const auto* spin = as<SpinControl>(part.children[1]);
  return spin != nullptr && part.children[0].control == &spin->buddy();
}

Layout withSpinPairs(Layout layout) {
  for (Layout& child : layout.children) child = withSpinPairs(std::move(child));
  if (layout.kind != Kind::row || isSpinPair(layout)) return layout;
  std::vector<Layout> parts;
  for (Layout& child : layout.children) {
    const auto* spin = as<SpinControl>(child);
    if (spin != nullptr && !parts.empty() && parts.back().control == &spin->buddy()) {
      std::vector<Layout> pair;
      pair.push_back(std::move(parts.back()));
      pair.push_back(std::move(child));
      parts.back() = row(std::move(pair));
    } else {
      parts.push_back(std::move(child));
    }
  }
  layout.children = std::move(parts);
  return layout;
}

}  // namespace tamrikon
