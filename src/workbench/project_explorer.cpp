#include "workbench/project_explorer.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <algorithm>
#include <array>
#include <vector>

#include "base/paths.h"
#include "toolkit_qt/qt_text.h"
#include "workbench/workbench_icons.h"

namespace tamrikon {
namespace {

struct Folder {
  const char* caption;
  std::vector<ComponentType> types;
};

const std::vector<Folder>& folders() {
  static const std::vector<Folder> kFolders{
      {"Forms", {ComponentType::form, ComponentType::mdiForm}},
      {"Modules", {ComponentType::standardModule}},
      {"Classes", {ComponentType::classModule}},
      {"User Controls", {ComponentType::userControl}},
      {"Property Pages", {ComponentType::propertyPage}},
      {"User Documents", {ComponentType::userDocument}},
      {"Designers", {ComponentType::designerForm, ComponentType::designer}},
      {"Resources", {ComponentType::resourceFile}},
      {"Related Documents", {ComponentType::relatedDocument}},
  };
  return kFolders;
}

/// What an item of the tree stands for.
class ProjectItem final : public QTreeWidgetItem {
 public:
  explicit ProjectItem(HostProject& owner) : project(owner) {}
  HostProject& project;
};

class ComponentItem final : public QTreeWidgetItem {
 public:
  explicit ComponentItem(HostComponent& shown) : component(shown) {}
  HostComponent& component;
};

QString captionOf(const HostComponent& component) {
  const QString file = toQt(std::string(lastName(component.path())));
  if (!hasCode(component.Type())) return file;
  return toQt(component.name()) + " (" + file + ')';
}

}  // namespace

ProjectExplorer::ProjectExplorer(QWidget* parent) : QTreeWidget(parent) {
  setObjectName("projectTree");
  setAccessibleName("Project Explorer");
  setHeaderHidden(true);
  setFrameShape(NoFrame);
  setUniformRowHeights(true);
  setIndentation(14);
  setExpandsOnDoubleClick(false);
  connect(this, &QTreeWidget::itemDoubleClicked, this,
          [this](QTreeWidgetItem* item) { openItem(item); });
}

void ProjectExplorer::show(HostIde* ide) {
  clear();
  ide_ = ide;
  if (ide == nullptr) return;
  for (int i = 1; i <= ide->VBProjects().Count(); ++i) addProject(ide->VBProjects().Item(i));
  refresh();
  expandAll();
  setCurrentItem(topLevelItem(0));
  markActive();
}

void ProjectExplorer::addProject(HostProject& project) {
  auto* projectItem = new ProjectItem(project);
  addTopLevelItem(projectItem);
  const QString file = toQt(std::string(lastName(project.FileName())));
  projectItem->setText(0, toQt(project.Name()) + " (" + file + ')');
  projectItem->setToolTip(0, toQt(project.FileName()));
  projectItem->setIcon(0, workbenchIcon(WorkbenchIcon::project));
  for (const Folder& folder : folders()) {
    std::vector<ComponentItem*> items;
    for (int i = 1; i <= project.VBComponents().Count(); ++i) {
      HostComponent& component = project.VBComponents().Item(i);
      const auto& types = folder.types;
      if (std::find(types.begin(), types.end(), component.Type()) == types.end()) continue;
      auto* item = items.emplace_back(new ComponentItem(component));
      item->setText(0, captionOf(component));
      item->setIcon(0, workbenchIcon(WorkbenchIcon::document));
    }
    if (items.empty()) continue;
    std::stable_sort(items.begin(), items.end(), [](const auto* one, const auto* other) {
      return one->text(0).compare(other->text(0), Qt::CaseInsensitive) < 0;
    });
    auto* folderItem = new QTreeWidgetItem(projectItem, {folder.caption});
    folderItem->setIcon(0, workbenchIcon(WorkbenchIcon::folder));
    for (ComponentItem* item : items) folderItem->addChild(item);
  }
}

void ProjectExplorer::markActive() {
  for (int i = 0; i < topLevelItemCount(); ++i) {
    QTreeWidgetItem* item = topLevelItem(i);
    QFont font = item->font(0);
    font.setBold(&static_cast<ProjectItem*>(item)->project == &ide_->ActiveVBProject());
    item->setFont(0, font);
  }
}

void ProjectExplorer::refresh() {
  for (QTreeWidgetItemIterator item(this); *item != nullptr; ++item) {
    const auto* own = dynamic_cast<ComponentItem*>(*item);
    if (own == nullptr) continue;
    const bool isThere = !own->component.isMissing();
    const QString path = toQt(own->component.path());
    (*item)->setText(0, captionOf(own->component));
    (*item)->setToolTip(0, isThere ? path : path + "\nThis file can't be read.");
    const auto group = isThere ? QPalette::Active : QPalette::Disabled;
    (*item)->setForeground(0, palette().brush(group, QPalette::Text));
  }
}

void ProjectExplorer::changeEvent(QEvent* event) {
  QTreeWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) refresh();
}

void ProjectExplorer::select(const HostModule& module) {
  for (QTreeWidgetItemIterator item(this); *item != nullptr; ++item) {
    const auto* own = dynamic_cast<ComponentItem*>(*item);
    if (own != nullptr && own->component.CodeModule() == &module) return setCurrentItem(*item);
  }
}

void ProjectExplorer::openSelected() {
  openItem(currentItem());
}

void ProjectExplorer::openItem(const QTreeWidgetItem* item) {
  if (item == nullptr) return;
  const auto* own = dynamic_cast<const ComponentItem*>(item);
  if (own == nullptr) return currentItem()->setExpanded(!item->isExpanded());
  if (own->component.isMissing()) return;
  if (own->component.CodeModule() != nullptr) return emit codeWanted(*own->component.CodeModule());
  emit documentWanted(toQt(own->component.path()));
}

void ProjectExplorer::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) return openSelected();
  QTreeWidget::keyPressEvent(event);
}

void ProjectExplorer::contextMenuEvent(QContextMenuEvent* event) {
  QTreeWidgetItem* item = currentItem();
  if (item == nullptr) return;
  const bool isByKey = event->reason() == QContextMenuEvent::Keyboard;
  QMenu menu;
  menu.setObjectName("explorerMenu");
  if (const auto* own = dynamic_cast<ComponentItem*>(item)) {
    const bool isCode = hasCode(own->component.Type());
    menu.addAction(isCode ? "View &Code" : "&Open", this, &ProjectExplorer::openSelected)
        ->setEnabled(!own->component.isMissing());
    menu.addSeparator();
  }
  while (item->parent() != nullptr) item = item->parent();
  HostProject& project = static_cast<ProjectItem*>(item)->project;
  menu.addAction("Set as &Active Project", this, [&] { emit activationWanted(project); })
      ->setEnabled(&project != &ide_->ActiveVBProject());
  menu.exec(isByKey ? viewport()->mapToGlobal(visualItemRect(currentItem()).bottomLeft())
                    : event->globalPos());
}

}  // namespace tamrikon
