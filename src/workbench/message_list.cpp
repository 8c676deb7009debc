#include "workbench/message_list.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>

namespace tamrikon {

MessageList::MessageList(QWidget* parent) : QListWidget(parent) {
  setObjectName("messageList");
  setAccessibleName("Messages");
  setSelectionMode(ExtendedSelection);
  setFrameShape(NoFrame);
  setUniformItemSizes(true);
  connect(this, &QListWidget::itemActivated, this, [this](QListWidgetItem* item) {
    const Message message = messages_[row(item)];
    if (message.module != nullptr) emit placeChosen(*message.module, message.place);
  });
}

void MessageList::show(const QList<Message>& messages) {
  clear();
  messages_.clear();
  for (const Message& message : messages) add(message);
  if (messages.isEmpty()) emit emptied();
}

void MessageList::add(const Message& message) {
  messages_ += message;
  auto* item = new QListWidgetItem(message.text, this);
  item->setToolTip(message.text);
}

void MessageList::copy() const {
  QStringList texts;
  for (int i = 0; i < count(); ++i) {
    if (item(i)->isSelected()) texts += item(i)->text();
  }
  if (!texts.isEmpty()) QGuiApplication::clipboard()->setText(texts.join('\n'));
}

void MessageList::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Copy)) return copy();
  QListWidget::keyPressEvent(event);
}

void MessageList::contextMenuEvent(QContextMenuEvent* event) {
  QMenu menu;
  menu.addAction("&Copy", this, &MessageList::copy)->setEnabled(!selectedItems().isEmpty());
  menu.addAction("Select &All", this, &QListWidget::selectAll)->setEnabled(count() > 0);
  menu.addAction("C&lear", this, [this] { show({}); })->setEnabled(count() > 0);
  menu.exec(event->globalPos());
}

}  // namespace tamrikon
