// Which of a project's code modules are chosen, and in which order they were.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "base/keyed_list.h"
#include "ide/ide.h"

namespace tamrikon {

class ModuleSelection {
 public:
  /// `all` are the modules that can be chosen, under their indexes from 0; `chosen` those that are,
  /// told by their objects. A chosen module that isn't among `all` stays chosen.
  void fill(const KeyedList<CodeModule*>& all, const KeyedList<CodeModule*>& chosen);

  /// How many modules can be chosen.
  std::size_t size() const { return size_; }
  const std::string& name(std::size_t index) const { return entries_[index].name; }
  bool isChosen(std::size_t index) const { return entries_[index].rank != 0; }

  /// What is chosen comes behind all others; what is chosen already keeps its place.
  void choose(std::size_t index);
  void drop(std::size_t index) { entries_[index].rank = 0; }

  /// The chosen modules by name, in the order in which they were chosen.
  KeyedList<CodeModule*> list() const;

 private:
  // A place in the list is a rank, so that neither choosing nor dropping moves the others.
  struct Entry {
    std::string name;
    CodeModule* module;
    std::size_t rank;  // 0: not chosen
  };

  std::vector<Entry> entries_;  // those that can be chosen come first
  std::size_t size_ = 0;
  std::size_t lastRank_ = 0;
};

}  // namespace tamrikon
