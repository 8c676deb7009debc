// What a user does in dialogs that come up one after the other, while the program runs them.
#pragma once

#include <QApplication>
#include <QPushButton>
#include <QString>
#include <QTimer>
#include <functional>
#include <utility>
#include <vector>

namespace tamrikon::test {

/// Presses a button of the dialog as soon as the step that asks for it has ended.
inline void pressLater(QWidget& dialog, const char* button) {
  QTimer::singleShot(0, &dialog,
                     [&dialog, button] { dialog.findChild<QPushButton*>(button)->click(); });
}

class ModalSteps {
 public:
  using Step = std::function<void(QWidget&)>;

  /// Runs `step` when the dialog of that name is in front and no work goes on in it: a progress
  /// dialog is waited for until it can be closed.
  void add(const QString& dialog, Step step) { steps_.emplace_back(dialog, std::move(step)); }

  void start() {
    QObject::connect(&timer_, &QTimer::timeout, [this] { look(); });
    timer_.start(10);
  }

  /// Whether all steps have been run.
  bool isDone() const { return next_ == steps_.size(); }

 private:
  void look() {
    constexpr int kLooks = 5;  // nobody clicks before a dialog has been painted
    QWidget* const front = QApplication::activeModalWidget();
    if (front != std::exchange(front_, front)) looks_ = 0;
    if (front == nullptr || isDone() || ++looks_ < kLooks) return;
    if (front->objectName() != steps_[next_].first) return;
    const auto* close = front->findChild<QPushButton*>("OKButton");
    if (close != nullptr && !close->isEnabled()) return;
    const Step& step = steps_[next_++].second;
    timer_.stop();
    step(*front);
    timer_.start(10);
  }

  QTimer timer_;
  std::vector<std::pair<QString, Step>> steps_;
  std::size_t next_ = 0;
  QWidget* front_ = nullptr;  // at the last look
  int looks_ = 0;             // at the same dialog
};

}  // namespace tamrikon::test
