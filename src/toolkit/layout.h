// Where the controls of a dialog stand: a tree that a renderer walks once. It says what belongs
// together and what grows, and leaves measures, margins and fonts to the renderer.
#pragma once

#include <utility>
#include <vector>

#include "toolkit/containers.h"
#include "toolkit/control.h"
#include "toolkit/grid.h"
#include "toolkit/text_controls.h"

namespace tamrikon {

struct Layout {
  enum class Kind {
    control,   // one control
    row,       // children side by side
    column,    // children one below the other
    table,     // children are rows, whose children stand in common columns
    labelled,  // `control` is the label of the first child, and stands above it
    frame,     // `control` is a Frame around the one child
    tabs,      // `control` is a TabStrip with a child a tab
    space,     // empty, takes what room is left
  };

  Kind kind = Kind::space;
  Control* control = nullptr;
  std::vector<Layout> children;

  /// The text boxes that are laid over the cells of `control`, a Grid.
  std::vector<TextBox*> boxes;

  /// The room that a control asks for at least, in characters and lines of text; 0 for what it
  /// needs by itself.
  int characters = 0;
  int lines = 0;

  /// Whether it takes a share of the room that a larger dialog has.
  bool grows = false;

  Layout sized(int leastCharacters, int leastLines = 0) && {
    characters = leastCharacters;
    lines = leastLines;
    return std::move(*this);
  }
  Layout growing() && {
    grows = true;
    return std::move(*this);
  }
};

inline Layout item(Control& control) {
  Layout layout;
  layout.kind = Layout::Kind::control;
  layout.control = &control;
  return layout;
}

inline Layout container(Layout::Kind kind, Control* control, std::vector<Layout> children) {
  Layout layout;
  layout.kind = kind;
  layout.control = control;
  layout.children = std::move(children);
  return layout;
}

inline Layout row(std::vector<Layout> children) {
  return container(Layout::Kind::row, nullptr, std::move(children));
}
inline Layout column(std::vector<Layout> children) {
  return container(Layout::Kind::column, nullptr, std::move(children));
}
inline Layout table(std::vector<Layout> rows) {
  return container(Layout::Kind::table, nullptr, std::move(rows));
}
inline Layout labelled(Label& label, Layout child) {
  return container(Layout::Kind::labelled, &label, {std::move(child)});
}
inline Layout framed(Frame& frame, Layout child) {
  return container(Layout::Kind::frame, &frame, {std::move(child)});
}
inline Layout tabbed(TabStrip& strip, std::vector<Layout> pages) {
  return container(Layout::Kind::tabs, &strip, std::move(pages));
}
inline Layout space() {
  return {};
}
inline Layout gridItem(Grid& grid, std::vector<TextBox*> boxes) {
  Layout layout = item(grid);
  layout.boxes = std::move(boxes);
  return layout;
}

}  // namespace tamrikon
