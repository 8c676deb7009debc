// The list at the bottom of the workbench: warnings, and places that were found.
#pragma once

#include <QListWidget>
#include <QPointer>

#include "ide/ide.h"

namespace tamrikon {

class HostModule;

struct Message {
  QString text;
  HostModule* module = nullptr;  // null if it is of no place
  Selection place;
};

class MessageList final : public QListWidget {
  Q_OBJECT
 public:
  explicit MessageList(QWidget* parent = nullptr);

  /// Replaces all messages.
  void show(const QList<Message>& messages);
  void add(const Message& message);

 signals:
  /// The user wants to go to a message's place.
  void placeChosen(HostModule& module, const Selection& place);

  /// Nothing is left in it.
  void emptied();

 public slots:
  void copy() const;

 private:
  void contextMenuEvent(QContextMenuEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

  QList<Message> messages_;
};

}  // namespace tamrikon
