#include "cli/questions.h"

#include <vector>

#include "base/case_folding.h"
#include "base/text.h"

namespace tamrikon {
namespace {

struct Answer {
  MessageAnswer answer;
  std::string_view word;
};

std::vector<Answer> answersOf(MessageButtons buttons) {
  constexpr Answer kOk{MessageAnswer::ok, "Ok"};
  constexpr Answer kCancel{MessageAnswer::cancel, "Cancel"};
  constexpr Answer kRetry{MessageAnswer::retry, "Retry"};
  constexpr Answer kYes{MessageAnswer::yes, "Yes"};
  constexpr Answer kNo{MessageAnswer::no, "No"};
  switch (buttons) {
    case MessageButtons::ok: return {kOk};
    case MessageButtons::okCancel: return {kOk, kCancel};
    case MessageButtons::retryCancel: return {kRetry, kCancel};
    case MessageButtons::yesNo: return {kYes, kNo};
    case MessageButtons::yesNoCancel: break;
  }
  return {kYes, kNo, kCancel};
}

}  // namespace

std::string promptFor(MessageButtons buttons) {
  std::string prompt;
  if (buttons == MessageButtons::ok) return prompt;
  for (const Answer& answer : answersOf(buttons)) {
    if (!prompt.empty()) prompt += ", ";
    prompt.append("[").append(answer.word.substr(0, 1)).append("]").append(answer.word.substr(1));
  }
  return prompt + "? ";
}

std::optional<MessageAnswer> readAnswer(std::string_view line, MessageButtons buttons) {
  const std::string_view word = trim(line);
  for (const Answer& answer : answersOf(buttons)) {
    if (equalIgnoringCase(word, answer.word) || equalIgnoringCase(word, answer.word.substr(0, 1))) {
      return answer.answer;
    }
  }
  return std::nullopt;
}

MessageAnswer answerOfNobody(MessageButtons buttons) {
  return answersOf(buttons).back().answer;
}

}  // namespace tamrikon
