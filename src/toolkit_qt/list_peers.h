// Lists, lists of check boxes and drop-down lists.
#pragma once

#include <QComboBox>
#include <QListWidget>
#include <functional>
#include <string>
#include <vector>

#include "toolkit/list_controls.h"
#include "toolkit_qt/peer.h"
#include "toolkit_qt/room.h"

namespace tamrikon {

/// A list of which one item is selected, and stays so until another one is.
class ListView final : public Sized<QListWidget> {
 public:
  explicit ListView(QWidget* parent);

  /// The selected item has been pressed once more.
  std::function<void()> onPressedAgain;

 protected:
  QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                       const QEvent* event) const override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
};

/// A drop-down list as wide as its items, or as it is asked for. Qt's own way of that resizes it
/// past its layout.
class DropDown final : public QComboBox {
 public:
  explicit DropDown(QWidget* parent);

  void setRoom(int characters);
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 private:
  int characters_ = 0;
};

class ListBoxPeer final : public Peer {
 public:
  using ControlType = ListBox;

  ListBoxPeer(PeerContext context, ListBox& list, QWidget* parent);

  void askForRoom(int characters, int lines) override;

 protected:
  void update() override;

 private:
  int selectedRow() const;
  void showItems();

  ListBox& list_;
  ListView* widget_;
  std::vector<std::string> shown_;
};

class CheckListPeer final : public Peer {
 public:
  using ControlType = CheckList;

  CheckListPeer(PeerContext context, CheckList& list, QWidget* parent);

  void askForRoom(int characters, int lines) override;
  void itemChanged(int index) override;

 protected:
  void update() override;

 private:
  void showItem(int index);

  CheckList& list_;
  Sized<QListWidget>* widget_;
  std::vector<std::string> shown_;  // the texts
};

class ComboBoxPeer final : public Peer {
 public:
  using ControlType = ComboBox;

  ComboBoxPeer(PeerContext context, ComboBox& box, QWidget* parent);

  void askForRoom(int characters, int lines) override;

 protected:
  void update() override;

 private:
  void becomeEditable();

  ComboBox& box_;
  DropDown* widget_;
  std::vector<std::string> shown_;
};

}  // namespace tamrikon
