// Link lists: what a template walks to print cross-references. An item is a link, CR and a label,
// which may be empty. The lists come in the order of the source, unsorted.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "model/wrapper_collections.h"
#include "model/wrapper_index.h"
#include "template/macro_table.h"

namespace tamrikon {

using LinkListRef = std::shared_ptr<const MacroList>;

class LinkLists {
 public:
  /// `wrappers` must outlive this object.
  explicit LinkLists(const WrapperCollections& wrappers) : wrappers_(wrappers) {}

  /// The modules in which the comment of `wrapper` applies, each once.
  LinkListRef getAppliesList(const Wrapper& wrapper);

  /// The properties, methods and events of the module that `wrapper` stands for; a property with
  /// several procedures stands once.
  LinkListRef getPropsList(const Wrapper& wrapper);
  LinkListRef getMethodsList(const Wrapper& wrapper);
  LinkListRef getEventsList(const Wrapper& wrapper);

  /// An item for each wrapper, with a word for its kind behind the label.
  static LinkListRef makeLinkList(const std::vector<WrapperRef>& wrappers);

  /// The label of its item: the wrapper's name, where that isn't unique its module, and the word.
  static std::string indexLabel(const Wrapper& wrapper);

  /// Whether labels of `wrapper` must add the module's name.
  bool needsModuleName(const Wrapper& wrapper) { return index().needsModuleName(wrapper); }

  /// To be called whenever wrappers or their comments have changed.
  void forget() {
    index_.reset();
    ownModule_ = nullptr;
  }

 private:
  const WrapperIndex& index();
  LinkListRef ownModuleList(const Wrapper& wrapper);
  TopicItem moduleItem(std::string_view name) const;

  const WrapperCollections& wrappers_;
  std::unique_ptr<WrapperIndex> index_;
  const CodeModule* ownModule_ = nullptr;  // that the list was last made for
  LinkListRef ownModuleList_;
};

}  // namespace tamrikon
