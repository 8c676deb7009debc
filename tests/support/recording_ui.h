// Stands where a dialog or a terminal stands: keeps what it is told and answers as it was told to.
#pragma once

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "compiler/user_interface.h"

namespace tamrikon::test {

class RecordingUi final : public UserInterface {
 public:
  std::vector<std::string> messages;
  std::vector<std::string> statusLines;
  std::vector<std::string> boxes;     // "title: text"
  std::deque<MessageAnswer> answers;  // taken in order; then Cancel
  std::function<void()> onPump = [] {};

  void addMessage(const std::string& text) override { messages.push_back(text); }
  void setStatusLine(const std::string& text) override { statusLines.push_back(text); }
  void setProgress(std::size_t, std::size_t) override {}
  MessageAnswer messageBox(const std::string& title, const std::string& text,
                           MessageButtons) override {
    boxes.push_back(title + ": " + text);
    if (answers.empty()) return MessageAnswer::cancel;
    const MessageAnswer answer = answers.front();
    answers.pop_front();
    return answer;
  }
  void pumpEvents() override { onPump(); }
};

}  // namespace tamrikon::test
