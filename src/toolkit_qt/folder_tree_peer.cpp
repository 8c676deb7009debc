#include "toolkit_qt/folder_tree_peer.h"

#include <QHeaderView>
#include <algorithm>

#include "base/paths.h"
#include "toolkit_qt/event_gate.h"
#include "toolkit_qt/qt_text.h"

namespace tamrikon {
namespace {

constexpr int kCharacters = 36;  // of a tree that asks for nothing
constexpr int kLines = 10;
constexpr int kPathRole = Qt::UserRole;        // bytes, as a folder's name needn't be UTF-8
constexpr int kFilledRole = Qt::UserRole + 1;  // whether its folders have been read

std::string pathOf(const QTreeWidgetItem& item) {
  return item.data(0, kPathRole).toByteArray().toStdString();
}

std::string childPath(const std::string& folder, const std::string& name) {
  return endsInSeparator(folder) ? folder + name : folder + "/" + name;
}

}  // namespace

FolderView::FolderView(QWidget* parent) : Sized(parent) {
  setHeaderHidden(true);
  setUniformRowHeights(true);
  header()->setStretchLastSection(false);
  const auto fit = [this] { fitLines(); };
  connect(this, &QTreeWidget::itemExpanded, this, fit);
  connect(this, &QTreeWidget::itemCollapsed, this, fit);
}

void FolderView::fitLines() {
  header()->resizeSection(0, std::max(viewport()->width(), sizeHintForColumn(0)));
}

void FolderView::resizeEvent(QResizeEvent* event) {
  Sized::resizeEvent(event);
  fitLines();
}

FolderTreePeer::FolderTreePeer(PeerContext context, FolderTree& tree, QWidget* parent)
    : Peer(context, tree, *new FolderView(parent)),
      tree_(tree),
      widget_(static_cast<FolderView*>(&widget())) {
  connect(widget_, &QTreeWidget::itemExpanded, this, [this](QTreeWidgetItem* item) { fill(item); });
  connect(widget_, &QTreeWidget::itemSelectionChanged, this, [this] {
    const std::string path = shownSelection();
    if (!path.empty() && path != tree_.selected()) tell([this, path] { tree_.userSelected(path); });
  });
}

void FolderTreePeer::askForRoom(int characters, int lines) {
  widget_->setRoom(roomInside(*widget_, characters > 0 ? characters : kCharacters,
                              lines > 0 ? lines : kLines, itemHeight(*widget_)));
}

QTreeWidgetItem* FolderTreePeer::addFolder(QTreeWidgetItem* parent, const std::string& name,
                                           const std::string& path) {
  auto* item = new QTreeWidgetItem({toQt(name)});
  item->setIcon(0, widget_->style()->standardIcon(QStyle::SP_DirIcon, nullptr, widget_));
  item->setData(0, kPathRole, QByteArray::fromStdString(path));
  // Whether there are folders in it isn't looked up before it is opened.
  item->setChildIndicatorPolicy(QTreeWidgetItem::ShowIndicator);
  if (parent != nullptr) {
    parent->addChild(item);
  } else {
    widget_->addTopLevelItem(item);
  }
  return item;
}

void FolderTreePeer::fill(QTreeWidgetItem* item) {
  if (item->data(0, kFilledRole).toBool()) return;
  item->setData(0, kFilledRole, true);
  const std::string folder = pathOf(*item);
  for (const std::string& name : tree_.subfolders(folder)) {
    addFolder(item, name, childPath(folder, name));
  }
  item->setChildIndicatorPolicy(QTreeWidgetItem::DontShowIndicatorWhenChildless);
}

QTreeWidgetItem* FolderTreePeer::find(const std::string& path) {
  QTreeWidgetItem* item = widget_->topLevelItem(0);
  while (item != nullptr && pathOf(*item) != path) {
    fill(item);
    QTreeWidgetItem* next = nullptr;
    for (int i = 0; i < item->childCount() && next == nullptr; ++i) {
      const std::string child = pathOf(*item->child(i));
      if (path == child || path.starts_with(child + "/")) next = item->child(i);
    }
    if (next != nullptr) item->setExpanded(true);
    item = next;
  }
  return item;
}

std::string FolderTreePeer::shownSelection() const {
  const QList<QTreeWidgetItem*> items = widget_->selectedItems();
  return items.isEmpty() ? "" : pathOf(*items.first());
}

void FolderTreePeer::update() {
  Peer::update();
  if (shownReading_ != tree_.readings() || shownRoot_ != tree_.root()) {
    shownReading_ = tree_.readings();
    shownRoot_ = tree_.root();
    widget_->clear();
    if (!shownRoot_.empty()) addFolder(nullptr, shownRoot_, shownRoot_)->setExpanded(true);
  }
  if (shownSelection() == tree_.selected()) return;
  QTreeWidgetItem* item = find(tree_.selected());
  widget_->setCurrentItem(item);
  if (item != nullptr) {
    widget_->scrollToItem(item);
  } else {
    widget_->clearSelection();
  }
}

}  // namespace tamrikon
