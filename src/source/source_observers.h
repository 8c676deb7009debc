// Those who want to know when a source changes, such as the editors that show it.
#pragma once

#include <cstddef>
#include <vector>

namespace tamrikon {

/// Is told of every change of a source, whoever makes it: an edit through any module that stands
/// over it, undo and redo, or a reload. It may look at the module, register and deregister
/// observers, itself included; it must not edit the module.
class SourceObserver {
 public:
  virtual ~SourceObserver() = default;

  /// `removed` visible lines from `first` on (from 1) have become `inserted` others. One edit may
  /// come as several changes; each is told when the module's lines are what it left.
  virtual void linesChanged(int first, int removed, int inserted) = 0;

  /// isChanged() of the module has become true or false. All changes of lines that go with it have
  /// been told.
  virtual void savedStateChanged() {}
};

/// An observer isn't told of a change that was made before it came or after it has gone.
class SourceObservers {
 public:
  /// The observer must deregister before it dies. Registering twice has no effect.
  void add(SourceObserver& observer);
  void remove(SourceObserver& observer);

  void linesChanged(int first, int removed, int inserted);
  void savedStateChanged();

 private:
  template <typename Call>
  void tell(const Call& call);

  std::vector<SourceObserver*> observers_;  // null where one has gone while others are being told
  int telling_ = 0;
};

}  // namespace tamrikon
