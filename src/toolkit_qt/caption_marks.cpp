#include "toolkit_qt/caption_marks.h"

#include <utility>

#include "toolkit/accelerators.h"
#include "toolkit/control.h"
#include "toolkit_qt/qt_text.h"

namespace tamrikon {

CaptionMarks::CaptionMarks(std::function<void(const Control&)> onMoved)
    : onMoved_(std::move(onMoved)) {}

int CaptionMarks::addPage(int parent) {
  parents_.push_back(parent);
  return static_cast<int>(parents_.size()) - 1;
}

void CaptionMarks::add(const Control& control, int page) {
  indexes_[&control] = entries_.size();
  entries_.push_back({&control, page, {}, {}});
  stale_ = true;
}

QString CaptionMarks::captionOf(const Control& control) {
  const auto found = indexes_.find(&control);
  if (found == indexes_.end()) return literalCaption(control.caption());
  if (stale_ || entries_[found->second].caption != control.caption()) choose(control);
  return entries_[found->second].marked;
}

void CaptionMarks::choose(const Control& asked) {
  std::vector<QString> before;
  for (const Entry& entry : entries_) before.push_back(entry.marked);
  stale_ = false;
  choosePage(-1, "");
  for (std::size_t i = 0; i < before.size(); ++i) {
    if (entries_[i].control != &asked && entries_[i].marked != before[i]) {
      onMoved_(*entries_[i].control);
    }
  }
}

void CaptionMarks::choosePage(int page, const std::string& taken) {
  std::vector<Entry*> here;
  std::vector<std::string> captions;
  for (Entry& entry : entries_) {
    if (entry.page != page) continue;
    entry.caption = entry.control->caption();
    here.push_back(&entry);
    captions.push_back(entry.caption);
  }
  const std::vector<std::size_t> letters = chooseAccelerators(captions, taken);
  std::string takenHere = taken;
  for (std::size_t i = 0; i < here.size(); ++i) {
    here[i]->marked = linesToQt(markedCaption(captions[i], letters[i]));
    if (letters[i] != std::string::npos) {
      takenHere += static_cast<char>(captions[i][letters[i]] | 0x20);  // lower case
    }
  }
  for (std::size_t i = 0; i < parents_.size(); ++i) {
    if (parents_[i] == page) choosePage(static_cast<int>(i), takenHere);
  }
}

}  // namespace tamrikon
