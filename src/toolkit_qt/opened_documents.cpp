#include "toolkit_qt/opened_documents.h"

#include <utility>

namespace tamrikon {
namespace {

constexpr int kPause = 200;  // milliseconds
constexpr int kFailsWithin =
    50;  // looks; a viewer may end badly long after it has shown the document

}  // namespace

OpenedDocuments::OpenedDocuments(std::function<void(const MessageBox&)> onFailure)
    : onFailure_(std::move(onFailure)) {
  connect(&timer_, &QTimer::timeout, this, [this] { look(); });
}

void OpenedDocuments::add(DocumentOpener opener, const MessageBox& failure) {
  pending_.push_back({opener, failure});
  timer_.start(kPause);
}

void OpenedDocuments::look() {
  std::vector<MessageBox> failures;
  std::erase_if(pending_, [&failures](Pending& document) {
    const DocumentOpener::State state = document.opener.poll();
    if (state == DocumentOpener::State::failed && document.looks < kFailsWithin) {
      failures.push_back(document.failure);
    }
    ++document.looks;
    return state != DocumentOpener::State::atWork;
  });
  if (pending_.empty()) timer_.stop();
  // Events run while they are shown, this one too.
  for (const MessageBox& failure : failures) onFailure_(failure);
}

}  // namespace tamrikon
