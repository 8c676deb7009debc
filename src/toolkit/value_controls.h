// Controls that show or change a number.
#pragma once

#include <cstddef>
#include <functional>

#include "toolkit/control.h"

namespace tamrikon {

class TextBox;

/// Two arrows beside a text box, which change its number. A text that is no number counts as the
/// minimum.
class SpinControl final : public Control {
 public:
  /// `buddy` must outlive this control. Both ends of the range are within it.
  SpinControl(Dialog& dialog, std::string name, TextBox& buddy, int minimum, int maximum)
      : Control(dialog, std::move(name)), buddy_(buddy), minimum_(minimum), maximum_(maximum) {}

  TextBox& buddy() const { return buddy_; }
  int minimum() const { return minimum_; }
  int maximum() const { return maximum_; }

  std::function<void()> onChange;

  // For renderers.
  void userStepped(int steps);

 private:
  TextBox& buddy_;
  int minimum_;
  int maximum_;
};

/// Something that moves while work goes on, and says how far it is.
class ProgressIndicator final : public Control {
 public:
  using Control::Control;

  bool isRunning() const { return running_; }
  void setRunning(bool running) { set(running_, running); }

  std::size_t done() const { return done_; }

  /// 0 if it isn't known how much there is to do.
  std::size_t all() const { return all_; }
  void setProgress(std::size_t done, std::size_t all) {
    if (done_ == done && all_ == all) return;
    done_ = done;
    all_ = all;
    changed();
  }

 private:
  bool running_ = false;
  std::size_t done_ = 0;
  std::size_t all_ = 0;
};

}  // namespace tamrikon
