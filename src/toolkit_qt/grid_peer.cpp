#include "toolkit_qt/grid_peer.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QScrollBar>
#include <algorithm>
#include <utility>

#include "toolkit_qt/event_gate.h"
#include "toolkit_qt/qt_text.h"
#include "toolkit_qt/text_box_peers.h"

namespace tamrikon {
namespace {

constexpr int kCharacters = 40;  // of a grid that asks for nothing
constexpr int kLines = 6;

/// What a cell shows of a text: its first line.
QString firstLine(const QString& text) {
  const auto end = text.indexOf(QLatin1Char('\n'));
  return end < 0 ? text : text.left(end) + QStringLiteral(" \u2026");
}

}  // namespace

void GridTable::mousePressEvent(QMouseEvent* event) {
  const QModelIndex cell = indexAt(event->position().toPoint());
  if (event->button() == Qt::LeftButton && cell.isValid()) onPressed(cell.row(), cell.column());
}

void GridTable::keyPressEvent(QKeyEvent* event) {
  if (!onKey(*event)) event->ignore();
}

void GridTable::showEvent(QShowEvent* event) {
  Sized::showEvent(event);
  if (std::exchange(hasWidths_, true) || columnCount() == 0) return;
  for (int i = 0; i + 1 < columnCount(); ++i) {
    setColumnWidth(i, viewport()->width() / columnCount());
  }
}

void GridTable::resizeEvent(QResizeEvent* event) {
  Sized::resizeEvent(event);
  onResized();
}

GridPeer::GridPeer(PeerContext context, Grid& grid, QWidget* parent)
    : Peer(context, grid, *new GridTable(parent)),
      grid_(grid),
      widget_(static_cast<GridTable*>(&widget())) {
  widget_->onPressed = [this](int row, int column) {
    tell([this, row, column] { grid_.userClicked(row, column); });
  };
  widget_->onKey = [this](QKeyEvent& key) { return takeKey(key); };
  widget_->onResized = [this] { placeBox(); };
  widget_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  widget_->setSelectionMode(QAbstractItemView::SingleSelection);
  widget_->setTabKeyNavigation(false);
  widget_->setWordWrap(false);
  widget_->setColumnCount(grid.columnCount());
  QStringList headers;
  for (const std::string& header : grid.headers()) headers.append(toQt(header));
  widget_->setHorizontalHeaderLabels(headers);
  QHeaderView& header = *widget_->horizontalHeader();
  header.setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  header.setHighlightSections(false);
  header.setSectionsClickable(false);
  header.setStretchLastSection(true);
  widget_->verticalHeader()->hide();
  widget_->verticalHeader()->setDefaultSectionSize(QLineEdit(widget_).sizeHint().height());
  widget_->verticalHeader()->setMinimumSectionSize(-1);
  widget_->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
  for (const QScrollBar* bar : {widget_->verticalScrollBar(), widget_->horizontalScrollBar()}) {
    connect(bar, &QScrollBar::valueChanged, this, [this] { placeBox(); });
  }
  connect(&header, &QHeaderView::sectionResized, this, [this] { placeBox(); });
}

void GridPeer::askForRoom(int characters, int lines) {
  QSize room =
      roomInside(*widget_, characters > 0 ? characters : kCharacters, lines > 0 ? lines : kLines,
                 widget_->verticalHeader()->defaultSectionSize());
  room.rheight() += widget_->horizontalHeader()->sizeHint().height();
  widget_->setRoom(room);
}

void GridPeer::addBox(TextBoxPeer& box) {
  box.setInPlace(grid_, *widget_);
  boxes_.push_back(&box);
}

void GridPeer::itemChanged(int row) {
  const EventGate::Quiet quiet(context().gate);
  showRow(row);
}

void GridPeer::showRow(int row) {
  std::vector<std::string>& shown = shown_[static_cast<std::size_t>(row)];
  for (int column = 0; column < grid_.columnCount(); ++column) {
    std::string& cell = shown[static_cast<std::size_t>(column)];
    QTableWidgetItem* item = widget_->item(row, column);
    if (item != nullptr && cell == grid_.cell(row, column)) continue;
    if (item == nullptr) widget_->setItem(row, column, item = new QTableWidgetItem);
    cell = grid_.cell(row, column);
    const QString text = linesToQt(cell);
    item->setText(firstLine(text));
    item->setToolTip(text.contains(QLatin1Char('\n')) ? toolTipToQt(cell) : QString());
  }
}

void GridPeer::update() {
  Peer::update();
  if (widget_->rowCount() != grid_.rowCount()) {
    widget_->setRowCount(grid_.rowCount());
    shown_.resize(static_cast<std::size_t>(grid_.rowCount()),
                  std::vector<std::string>(static_cast<std::size_t>(grid_.columnCount())));
  }
  for (int row = 0; row < grid_.rowCount(); ++row) showRow(row);
  const QModelIndex current =
      widget_->model()->index(grid_.currentRow(), grid_.currentColumn());  // none for row -1
  const QItemSelectionModel& selection = *widget_->selectionModel();
  if (widget_->currentIndex() != current || (current.isValid() && !selection.isSelected(current))) {
    widget_->setCurrentCell(grid_.currentRow(), grid_.currentColumn(),
                            QItemSelectionModel::ClearAndSelect);
  }
  showBoxes();
}

void GridPeer::showBoxes() {
  placeBox();
  for (TextBoxPeer* box : boxes_) box->changed();
}

void GridPeer::placeBox() {
  const auto opened = std::find_if(boxes_.begin(), boxes_.end(), [this](const TextBoxPeer* box) {
    return &box->box() == grid_.openedBox();
  });
  if (opened == boxes_.end() || grid_.currentRow() < 0) return;
  const QModelIndex index = widget_->model()->index(grid_.currentRow(), grid_.currentColumn());
  QWidget& box = (*opened)->widget();
  QRect place = widget_->visualRect(index);
  const int grown = heightOf(box, grid_.boxLines() - 1);
  place.setHeight(
      std::min(place.height() + grown, std::max(boxParent()->height(), place.height())));
  // A high box over one of the last rows stands above its foot.
  if (grown > 0 && place.bottom() >= boxParent()->height()) {
    place.moveBottom(boxParent()->height() - 1);
  }
  box.setGeometry(place);
  box.raise();
}

bool GridPeer::takeKey(QKeyEvent& key) {
  if (grid_.rowCount() == 0) return false;
  const bool isTyped = !key.text().isEmpty() && key.text().front().isPrint() &&
                       !(key.modifiers() & (Qt::ControlModifier | Qt::AltModifier));
  const bool isClick = isTyped || key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter ||
                       key.key() == Qt::Key_F2;
  if (!isClick) return move(key);
  tell([this] { grid_.userClicked(grid_.currentRow(), grid_.currentColumn()); });
  if (!isTyped) return true;
  for (TextBoxPeer* box : boxes_) {
    if (&box->box() == grid_.openedBox()) box->type(key);
  }
  return true;
}

bool GridPeer::move(const QKeyEvent& key) {
  const bool toEdge = key.modifiers() & Qt::ControlModifier;
  const int lastRow = grid_.rowCount() - 1;
  const int lastColumn = grid_.columnCount() - 1;
  const int page = std::max(1, boxParent()->height() / widget_->rowHeight(0) - 1);
  int row = grid_.currentRow();
  int column = grid_.currentColumn();
  switch (key.key()) {
    case Qt::Key_Up: row = toEdge ? 0 : row - 1; break;
    case Qt::Key_Down: row = toEdge ? lastRow : row + 1; break;
    case Qt::Key_Left: column = toEdge ? 0 : column - 1; break;
    case Qt::Key_Right: column = toEdge ? lastColumn : column + 1; break;
    case Qt::Key_PageUp: row -= page; break;
    case Qt::Key_PageDown: row += page; break;
    case Qt::Key_Home: (toEdge ? row : column) = 0; break;
    case Qt::Key_End: (toEdge ? row : column) = toEdge ? lastRow : lastColumn; break;
    default: return false;
  }
  row = std::clamp(row, 0, lastRow);
  column = std::clamp(column, 0, lastColumn);
  if (row != grid_.currentRow() || column != grid_.currentColumn()) {
    tell([this, row, column] { grid_.userMoved(row, column); });
  }
  return true;
}

}  // namespace tamrikon
