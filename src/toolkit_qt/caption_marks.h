// The accelerators of a dialog, chosen anew whenever a caption changes.
#pragma once

#include <QString>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace tamrikon {

class Control;

class CaptionMarks {
 public:
  /// `onMoved` is told of each control, other than the one asked for, whose marked caption is
  /// another one now.
  explicit CaptionMarks(std::function<void(const Control&)> onMoved);

  /// A page of a tab strip that stands on `parent`; -1 is the dialog itself.
  int addPage(int parent);

  /// From now on the control has an accelerator, if there is a letter left.
  void add(const Control& control, int page);

  /// The control's caption as Qt wants it: with an accelerator if it was added.
  QString captionOf(const Control& control);

 private:
  struct Entry {
    const Control* control;
    int page;
    std::string caption;  // that the accelerator was chosen for
    QString marked;
  };

  void choose(const Control& asked);
  void choosePage(int page, const std::string& taken);

  std::function<void(const Control&)> onMoved_;
  std::vector<int> parents_;  // of the pages
  std::vector<Entry> entries_;
  std::map<const Control*, std::size_t> indexes_;
  bool stale_ = false;
};

}  // namespace tamrikon
