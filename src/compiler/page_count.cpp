#include "compiler/page_count.h"

#include <functional>

namespace tamrikon {

void PageCount::add(std::string_view path, bool changed) {
  bool& known = files_[std::hash<std::string_view>()(path)];
  if (changed && !known) ++changed_;
  known = known || changed;
}

void PageCount::addPieces(std::string_view path) {
  add(path, true);
  changedIsKnown_ = false;
}

}  // namespace tamrikon
