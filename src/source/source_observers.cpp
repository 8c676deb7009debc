#include "source/source_observers.h"

#include <algorithm>

namespace tamrikon {

void SourceObservers::add(SourceObserver& observer) {
  const bool isKnown =
      std::find(observers_.begin(), observers_.end(), &observer) != observers_.end();
  if (!isKnown) observers_.push_back(&observer);
}

void SourceObservers::remove(SourceObserver& observer) {
  std::replace(observers_.begin(), observers_.end(), &observer,
               static_cast<SourceObserver*>(nullptr));
  if (telling_ == 0) std::erase(observers_, nullptr);
}

template <typename Call>
void SourceObservers::tell(const Call& call) {
  ++telling_;
  const std::size_t count = observers_.size();  // those who come meanwhile know already
  for (std::size_t i = 0; i < count; ++i) {
    if (observers_[i] != nullptr) call(*observers_[i]);
  }
  if (--telling_ == 0) std::erase(observers_, nullptr);
}

void SourceObservers::linesChanged(int first, int removed, int inserted) {
  tell([&](SourceObserver& observer) { observer.linesChanged(first, removed, inserted); });
}

void SourceObservers::savedStateChanged() {
  tell([](SourceObserver& observer) { observer.savedStateChanged(); });
}

}  // namespace tamrikon
