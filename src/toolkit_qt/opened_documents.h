// The documents that are being opened in other programs.
#pragma once

#include <QObject>
#include <QTimer>
#include <functional>
#include <vector>

#include "platform/open_document.h"
#include "toolkit/message_box.h"

namespace tamrikon {

/// Looks after the processes that open them, while events go on.
class OpenedDocuments final : public QObject {
 public:
  /// `onFailure` gets the message of a document that couldn't be opened.
  explicit OpenedDocuments(std::function<void(const MessageBox&)> onFailure);

  void add(DocumentOpener opener, const MessageBox& failure);

 private:
  struct Pending {
    DocumentOpener opener;
    MessageBox failure;
    int looks = 0;
  };

  void look();

  std::function<void(const MessageBox&)> onFailure_;
  std::vector<Pending> pending_;
  QTimer timer_;
};

}  // namespace tamrikon
