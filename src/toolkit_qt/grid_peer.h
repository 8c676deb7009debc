// Grids and the boxes over their cells.
#pragma once

#include <QTableWidget>
#include <functional>
#include <string>
#include <vector>

#include "toolkit/grid.h"
#include "toolkit_qt/peer.h"
#include "toolkit_qt/room.h"

namespace tamrikon {

class TextBoxPeer;

/// A table that leaves it to others which cell is the current one.
class GridTable final : public Sized<QTableWidget> {
 public:
  using Sized::Sized;

  std::function<void(int row, int column)> onPressed;

  /// A key that isn't dealt with goes on to the dialog.
  std::function<bool(QKeyEvent&)> onKey;
  std::function<void()> onResized;

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }
  void mouseMoveEvent(QMouseEvent*) override {}
  void mouseReleaseEvent(QMouseEvent*) override {}
  void keyPressEvent(QKeyEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  bool hasWidths_ = false;
};

class GridPeer final : public Peer {
 public:
  using ControlType = Grid;

  GridPeer(PeerContext context, Grid& grid, QWidget* parent);

  void askForRoom(int characters, int lines) override;
  void itemChanged(int row) override;

  /// One of the grid's in-place boxes, whose widget is a child of boxParent().
  void addBox(TextBoxPeer& box);
  QWidget* boxParent() const { return widget_->viewport(); }

 protected:
  void update() override;

 private:
  void showRow(int row);
  void showBoxes();

  /// Lays the opened box over its cell.
  void placeBox();
  bool takeKey(QKeyEvent& key);
  bool move(const QKeyEvent& key);

  Grid& grid_;
  GridTable* widget_;
  std::vector<TextBoxPeer*> boxes_;
  std::vector<std::vector<std::string>> shown_;
};

}  // namespace tamrikon
