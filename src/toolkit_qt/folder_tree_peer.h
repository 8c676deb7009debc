// Trees of folders, which are read as far as they are opened.
#pragma once

#include <QTreeWidget>
#include <string>

#include "toolkit/folder_tree.h"
#include "toolkit_qt/peer.h"
#include "toolkit_qt/room.h"

namespace tamrikon {

/// A tree whose lines are as wide as the widest one, and no narrower than the view.
class FolderView final : public Sized<QTreeWidget> {
 public:
  explicit FolderView(QWidget* parent);

  void fitLines();

 protected:
  void resizeEvent(QResizeEvent* event) override;
};

class FolderTreePeer final : public Peer {
 public:
  using ControlType = FolderTree;

  FolderTreePeer(PeerContext context, FolderTree& tree, QWidget* parent);

  void askForRoom(int characters, int lines) override;

 protected:
  void update() override;

 private:
  QTreeWidgetItem* addFolder(QTreeWidgetItem* parent, const std::string& name,
                             const std::string& path);
  void fill(QTreeWidgetItem* item);

  /// The item of a path, all above it opened; null if it isn't there.
  QTreeWidgetItem* find(const std::string& path);
  std::string shownSelection() const;

  FolderTree& tree_;
  FolderView* widget_;
  std::string shownRoot_;
  int shownReading_ = 0;
};

}  // namespace tamrikon
