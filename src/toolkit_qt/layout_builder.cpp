#include "toolkit_qt/layout_builder.h"

#include <QStyle>
#include <algorithm>
#include <utility>

#include "toolkit_qt/container_peers.h"
#include "toolkit_qt/layout_traits.h"

namespace tamrikon {
namespace {

using Kind = Layout::Kind;

bool isSpace(const Layout& part) {
  return part.kind == Kind::space;
}

bool anyOf(const std::vector<Layout>& parts, bool (*test)(const Layout&)) {
  return std::any_of(parts.begin(), parts.end(), test);
}

/// Where a part stands in its row: on top beside a list, and in the middle beside a box.
Qt::Alignment alignmentIn(const Layout& row, const Layout& part) {
  Qt::Alignment alignment;
  if (part.kind == Kind::control && isTall(row) && !isTall(part)) alignment |= Qt::AlignTop;
  return alignment;
}

template <typename Made>
void addTo(QBoxLayout& box, const Made& made, int stretch, Qt::Alignment alignment) {
  if (made.widget) box.addWidget(made.widget, stretch, alignment);
  if (made.layout) {
    made.layout->setAlignment(alignment);
    box.addLayout(made.layout, stretch);
  }
}

template <typename Made>
void addTo(QGridLayout& grid, const Made& made, int row, int column, int columns,
           Qt::Alignment alignment) {
  if (made.widget) grid.addWidget(made.widget, row, column, 1, columns, alignment);
  if (made.layout) grid.addLayout(made.layout, row, column, 1, columns, alignment);
}

/// Lets the columns grow that are to, and if there are none, and nothing in them takes the width,
/// an empty one behind them.
void stretchColumns(QGridLayout& grid, const std::vector<bool>& growing, bool isWidthTaken) {
  bool any = false;
  for (std::size_t i = 0; i < growing.size(); ++i) {
    if (growing[i]) grid.setColumnStretch(static_cast<int>(i), 1);
    any = any || growing[i];
  }
  if (!any && !isWidthTaken) grid.setColumnStretch(static_cast<int>(growing.size()), 1);
}

int spacingOf(const QWidget& window, QStyle::PixelMetric metric, Qt::Orientation orientation) {
  const int spacing = window.style()->pixelMetric(metric, nullptr, &window);
  if (spacing >= 0) return spacing;
  // The style has different ones for different widgets: that of the most common ones.
  return window.style()->layoutSpacing(QSizePolicy::LineEdit, QSizePolicy::LineEdit, orientation,
                                       nullptr, &window);
}

}  // namespace

LayoutBuilder::LayoutBuilder(PeerFactory& factory, const QWidget& window)
    : factory_(factory),
      across_(spacingOf(window, QStyle::PM_LayoutHorizontalSpacing, Qt::Horizontal)),
      down_(spacingOf(window, QStyle::PM_LayoutVerticalSpacing, Qt::Vertical)) {}

void LayoutBuilder::fill(QWidget& page, const Layout& part) {
  page.setLayout(part.kind == Kind::column ? makeColumn(part, &page)
                                           : makeColumn(column({part}), &page));
}

LayoutBuilder::Made LayoutBuilder::make(const Layout& part, QWidget* parent) {
  switch (part.kind) {
    case Kind::control: return {makeControl(part, parent), nullptr};
    case Kind::row: return {nullptr, makeRow(part, parent)};
    case Kind::column: return {nullptr, makeColumn(part, parent)};
    case Kind::table: return {nullptr, makeTable(part, parent)};
    case Kind::labelled: return {nullptr, makeLabelled(part, parent)};
    case Kind::frame: return {makeFrame(part, parent), nullptr};
    case Kind::tabs: return {makeTabs(part, parent), nullptr};
    case Kind::space: break;
  }
  return {};
}

QWidget* LayoutBuilder::makeControl(const Layout& part, QWidget* parent) {
  QWidget& widget = factory_.make(part, parent).widget();
  if (keepsWidth(part)) {
    // Otherwise a box takes the width that its class has as its default.
    if (widget.minimumWidth() > 0) widget.setMaximumWidth(widget.minimumWidth());
    widget.setSizePolicy(QSizePolicy::Fixed, widget.sizePolicy().verticalPolicy());
  }
  return &widget;
}

QLayout* LayoutBuilder::makeRow(const Layout& row, QWidget* parent) {
  const auto isLabelled = [](const Layout& part) { return part.kind == Kind::labelled; };
  if (anyOf(row.children, isLabelled)) return makeLabelledRow(row, parent);
  auto* box = new QHBoxLayout;
  box->setSpacing(isSpinPair(row) ? 0 : across_);
  for (const Layout& part : row.children) {
    if (isSpace(part)) {
      box->addStretch(1);
    } else {
      addTo(*box, make(part, parent), growsAcross(part) ? 1 : 0, alignmentIn(row, part));
    }
  }
  if (!isSpinPair(row) && !anyOf(row.children, takesWidth)) box->addStretch(1);
  nameBoxes(row);
  return box;
}

QLayout* LayoutBuilder::makeLabelledRow(const Layout& row, QWidget* parent) {
  // The labels have a line of their own, so that what has none stands beside the boxes.
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(across_);
  grid->setVerticalSpacing(labelSpacing());
  grid->setRowStretch(1, 1);
  std::vector<bool> growing;
  for (const Layout& part : row.children) {
    const auto at = static_cast<int>(growing.size());
    growing.push_back(isSpace(part) || growsAcross(part));
    if (part.kind == Kind::labelled) {
      addTo(*grid, make(item(*part.control), parent), 0, at, 1, Qt::AlignBottom);
      const Layout& box = part.children.front();
      addTo(*grid, make(box, parent), 1, at, 1, alignmentIn(row, box));
      factory_.nameBox(*part.control, box);
    } else {
      addTo(*grid, make(part, parent), 1, at, 1, alignmentIn(row, part));
    }
  }
  stretchColumns(*grid, growing, anyOf(row.children, takesWidth));
  return grid;
}

QBoxLayout* LayoutBuilder::makeColumn(const Layout& column, QWidget* parent) {
  auto* box = new QVBoxLayout;
  box->setSpacing(down_);
  const std::vector<Layout>& parts = column.children;
  const bool isShared = anyOf(parts, growsDown) || anyOf(parts, isSpace);
  const bool isTaken = isShared || anyOf(parts, isTall);
  for (const Layout& part : parts) {
    // What nothing takes of the height stands before the buttons at the bottom of a dialog.
    const bool isFoot = &part == &parts.back() && parts.size() > 1 && isButtonRow(part);
    if (isFoot && !isTaken) box->addStretch(1);
    if (isSpace(part)) {
      box->addStretch(1);
      continue;
    }
    const int stretch = growsDown(part) || (!isShared && isTall(part)) ? 1 : 0;
    const bool keeps = keepsWidth(part) || isButton(part);
    addTo(*box, make(part, parent), stretch, keeps ? Qt::AlignLeft : Qt::Alignment());
  }
  if (!isTaken && !(parts.size() > 1 && isButtonRow(parts.back()))) box->addStretch(1);
  return box;
}

QLayout* LayoutBuilder::makeTable(const Layout& table, QWidget* parent) {
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(across_);
  grid->setVerticalSpacing(down_);
  std::size_t columns = 1;
  for (const Layout& line : table.children) {
    if (line.kind == Kind::row) columns = std::max(columns, line.children.size());
  }
  std::vector<bool> growing(columns);
  int at = 0;
  for (const Layout& line : table.children) {
    if (growsDown(line)) grid->setRowStretch(at, 1);
    // A line with one part, such as a check box, isn't to make the first column wide.
    if (line.kind != Kind::row || line.children.size() == 1) {
      const Layout& part = line.kind == Kind::row ? line.children.front() : line;
      addTo(*grid, make(part, parent), at++, 0, static_cast<int>(columns),
            keepsWidth(part) ? Qt::AlignLeft : Qt::Alignment());
      continue;
    }
    for (std::size_t i = 0; i < line.children.size(); ++i) {
      const Layout& part = line.children[i];
      if (growsAcross(part)) growing[i] = true;
      Qt::Alignment alignment = alignmentIn(line, part);
      if (keepsWidth(part) || isButton(part)) alignment |= Qt::AlignLeft;
      // A short line ends where the others do.
      const bool isLast = i + 1 == line.children.size() && takesWidth(part);
      addTo(*grid, make(part, parent), at, static_cast<int>(i),
            isLast ? static_cast<int>(columns - i) : 1, alignment);
    }
    nameBoxes(line);
    ++at;
  }
  stretchColumns(*grid, growing, anyOf(table.children, takesWidth));
  return grid;
}

QLayout* LayoutBuilder::makeLabelled(const Layout& part, QWidget* parent) {
  auto* box = new QVBoxLayout;
  box->setSpacing(labelSpacing());
  const Layout& child = part.children.front();
  addTo(*box, make(item(*part.control), parent), 0, {});
  addTo(*box, make(child, parent), isTall(child) ? 1 : 0,
        keepsWidth(child) ? Qt::AlignLeft : Qt::Alignment());
  factory_.nameBox(*part.control, child);
  return box;
}

QWidget* LayoutBuilder::makeFrame(const Layout& part, QWidget* parent) {
  FramePeer& frame = factory_.makeFrame(static_cast<Frame&>(*part.control), parent);
  frame.askForRoom(part.characters, part.lines);
  fill(frame.widget(), part.children.front());
  return &frame.widget();
}

QWidget* LayoutBuilder::makeTabs(const Layout& part, QWidget* parent) {
  auto& strip = static_cast<TabStrip&>(*part.control);
  TabStripPeer& tabs = factory_.makeTabs(strip, parent);
  tabs.askForRoom(part.characters, part.lines);
  const std::size_t count = std::min(strip.tabs().size(), part.children.size());
  for (std::size_t i = 0; i < count; ++i) {
    QWidget* page = tabs.addPage();
    const int outer = factory_.enterPage();
    fill(*page, part.children[i]);
    factory_.leavePage(outer);
  }
  return &tabs.widget();
}

void LayoutBuilder::nameBoxes(const Layout& row) {
  for (std::size_t i = 0; i + 1 < row.children.size(); ++i) {
    const Layout& label = row.children[i];
    const Layout& box = row.children[i + 1];
    const bool isOne = box.kind == Kind::control || isSpinPair(box);
    if (isOne && label.kind == Kind::control && dynamic_cast<Label*>(label.control) != nullptr) {
      factory_.nameBox(*label.control, box);
    }
  }
}

}  // namespace tamrikon
