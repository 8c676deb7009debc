#include "toolkit_qt/list_peers.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QStyledItemDelegate>
#include <algorithm>
#include <iterator>

#include "toolkit_qt/event_gate.h"
#include "toolkit_qt/qt_text.h"

namespace tamrikon {
namespace {

constexpr int kCharacters = 24;  // of a list that asks for nothing
constexpr int kLines = 6;
constexpr int kNarrowest = 8;  // characters of a drop-down list
constexpr int kWidest = 48;

QSize listRoom(const QListWidget& list, int characters, int lines) {
  return roomInside(list, characters > 0 ? characters : kCharacters, lines > 0 ? lines : kLines,
                    itemHeight(list));
}

/// Items whose boxes are seen on a dark background, too, where styles draw them darker still.
class CheckDelegate final : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    const QColor base = option->palette.color(QPalette::Base);
    const QColor text = option->palette.color(QPalette::Text);
    if (base.lightness() < text.lightness()) {
      option->palette.setColor(QPalette::Window, text.darker(120));
    }
  }
};

/// Makes the list hold `wanted` in place of `shown`, leaving the items alone that both have at
/// their beginning and their end, and the place that is scrolled to.
void replaceItems(QListWidget& list, std::vector<std::string>& shown,
                  const std::vector<std::string>& wanted) {
  const auto [shownBegin, wantedBegin] =
      std::mismatch(shown.begin(), shown.end(), wanted.begin(), wanted.end());
  const auto rest = std::min(shown.end() - shownBegin, wanted.end() - wantedBegin);
  const auto tail =
      std::mismatch(shown.rbegin(), shown.rbegin() + rest, wanted.rbegin()).first - shown.rbegin();
  const auto shownEnd = shown.end() - tail;
  const auto wantedEnd = wanted.end() - tail;
  const auto row = static_cast<int>(shownBegin - shown.begin());
  if (shownBegin != shownEnd) {
    list.model()->removeRows(row, static_cast<int>(shownEnd - shownBegin));
  }
  QStringList added;
  std::transform(wantedBegin, wantedEnd, std::back_inserter(added), linesToQt);
  if (!added.isEmpty()) list.insertItems(row, added);
  shown.insert(shown.erase(shownBegin, shownEnd), wantedBegin, wantedEnd);
}

}  // namespace

ListView::ListView(QWidget* parent) : Sized(parent) {
  setUniformItemSizes(true);
}

QItemSelectionModel::SelectionFlags ListView::selectionCommand(const QModelIndex& index,
                                                               const QEvent*) const {
  return index.isValid() ? QItemSelectionModel::ClearAndSelect : QItemSelectionModel::NoUpdate;
}

void ListView::keyPressEvent(QKeyEvent* event) {
  const int key = event->key();
  const bool isStep = key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_Home;
  // The item that Qt has made current when the focus came isn't selected: the first key does that.
  if (isStep && selectedItems().isEmpty() && currentIndex().isValid()) {
    selectionModel()->select(currentIndex(), QItemSelectionModel::ClearAndSelect);
    return;
  }
  Sized::keyPressEvent(event);
}

void ListView::mousePressEvent(QMouseEvent* event) {
  const QListWidgetItem* pressed = itemAt(event->position().toPoint());
  const bool again = event->button() == Qt::LeftButton && pressed && pressed->isSelected();
  Sized::mousePressEvent(event);
  if (again && onPressedAgain) onPressedAgain();
}

DropDown::DropDown(QWidget* parent) : QComboBox(parent) {
  setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
  setInsertPolicy(NoInsert);
}

void DropDown::setRoom(int characters) {
  characters_ = characters;
  updateGeometry();
}

QSize DropDown::sizeHint() const {
  int text = widthOf(*this, characters_);
  if (characters_ == 0) {
    for (int i = 0; i < count(); ++i) {
      text = std::max(text, fontMetrics().horizontalAdvance(itemText(i)));
    }
    text = std::clamp(text, widthOf(*this, kNarrowest), widthOf(*this, kWidest));
  }
  return QComboBox::sizeHint() + QSize(text + widthOf(*this, 1), 0);  // Qt's is that of no text
}

ListBoxPeer::ListBoxPeer(PeerContext context, ListBox& list, QWidget* parent)
    : Peer(context, list, *new ListView(parent)),
      list_(list),
      widget_(static_cast<ListView*>(&widget())) {
  const auto select = [this] {
    const int row = selectedRow();
    if (row >= 0) tell([this, row] { list_.userSelected(row); });
  };
  connect(widget_, &QListWidget::itemSelectionChanged, this, select);
  widget_->onPressedAgain = select;
  connect(widget_, &QListWidget::itemDoubleClicked, this, [this](QListWidgetItem* item) {
    const int row = widget_->row(item);
    tell([this, row] { list_.userActivated(row); });
  });
}

void ListBoxPeer::askForRoom(int characters, int lines) {
  widget_->setRoom(listRoom(*widget_, characters, lines));
}

int ListBoxPeer::selectedRow() const {
  const QModelIndexList selected = widget_->selectionModel()->selectedRows();
  return selected.isEmpty() ? -1 : selected.first().row();
}

void ListBoxPeer::update() {
  Peer::update();
  replaceItems(*widget_, shown_, list_.items());
  if (selectedRow() == list_.selected()) return;
  if (list_.selected() < 0) {
    widget_->clearSelection();
    widget_->setCurrentRow(-1);
  } else {
    widget_->setCurrentRow(list_.selected(), QItemSelectionModel::ClearAndSelect);
  }
}

CheckListPeer::CheckListPeer(PeerContext context, CheckList& list, QWidget* parent)
    : Peer(context, list, *new Sized<QListWidget>(parent)),
      list_(list),
      widget_(static_cast<Sized<QListWidget>*>(&widget())) {
  widget_->setUniformItemSizes(true);
  widget_->setItemDelegate(new CheckDelegate(widget_));
  connect(widget_, &QListWidget::itemChanged, this, [this](QListWidgetItem* item) {
    const int index = widget_->row(item);
    const bool checked = item->checkState() == Qt::Checked;
    if (this->context().gate.isQuiet() || list_.isChecked(index) == checked) return;
    tell([this, index, checked] { list_.userChecked(index, checked); });
  });
}

void CheckListPeer::askForRoom(int characters, int lines) {
  widget_->setRoom(listRoom(*widget_, characters, lines));
}

void CheckListPeer::itemChanged(int index) {
  const EventGate::Quiet quiet(context().gate);
  showItem(index);
}

void CheckListPeer::showItem(int index) {
  const Qt::CheckState state = list_.isChecked(index) ? Qt::Checked : Qt::Unchecked;
  QListWidgetItem& item = *widget_->item(index);
  const QVariant shown = item.data(Qt::CheckStateRole);
  // An item without a state has no box.
  if (!shown.isValid() || shown.toInt() != static_cast<int>(state)) item.setCheckState(state);
}

void CheckListPeer::update() {
  Peer::update();
  std::vector<std::string> texts;
  for (const CheckList::Item& item : list_.items()) texts.push_back(item.text);
  replaceItems(*widget_, shown_, texts);
  for (int i = 0; i < list_.count(); ++i) showItem(i);
}

ComboBoxPeer::ComboBoxPeer(PeerContext context, ComboBox& box, QWidget* parent)
    : Peer(context, box, *new DropDown(parent)),
      box_(box),
      widget_(static_cast<DropDown*>(&widget())) {
  // At once, as the Tab key stops where the line edit was made.
  if (box.isEditable()) becomeEditable();
  connect(widget_, &QComboBox::activated, this,
          [this](int index) { tell([this, index] { box_.userSelected(index); }); });
}

void ComboBoxPeer::askForRoom(int characters, int) {
  widget_->setRoom(characters);
  widget_->setSizePolicy(characters > 0 ? QSizePolicy::Preferred : QSizePolicy::Expanding,
                         QSizePolicy::Fixed);
}

void ComboBoxPeer::becomeEditable() {
  widget_->setEditable(true);
  widget_->setCompleter(nullptr);  // what is typed is what is meant
  QLineEdit* edit = widget_->lineEdit();
  // Qt would tell of an item that was chosen when a text is left that is an item's.
  disconnect(edit, &QLineEdit::editingFinished, widget_, nullptr);
  connect(edit, &QLineEdit::textEdited, this,
          [this](const QString& text) { tell([this, text] { box_.userEdited(fromQt(text)); }); });
}

void ComboBoxPeer::update() {
  Peer::update();
  if (box_.isEditable() && !widget_->isEditable()) becomeEditable();
  if (!box_.isEditable() && widget_->isEditable()) widget_->setEditable(false);
  bool differs = false;
  if (shown_ != box_.items()) {
    shown_ = box_.items();
    widget_->clear();
    for (const std::string& item : shown_) widget_->addItem(toQt(item));
    widget_->updateGeometry();
    differs = true;
  }
  if (widget_->isEditable()) {
    differs = differs || widget_->currentText() != toQt(box_.text());
  } else {
    differs = differs || widget_->currentIndex() != box_.selected();
  }
  if (!differs) return;
  widget_->setCurrentIndex(box_.selected());
  if (widget_->isEditable() && box_.selected() < 0) widget_->setEditText(toQt(box_.text()));
}

}  // namespace tamrikon
