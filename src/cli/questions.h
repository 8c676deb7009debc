// Message boxes as questions on a line.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "toolkit/message_box.h"

namespace tamrikon {

/// The answers to choose from, such as "[R]etry, [C]ancel? "; empty for a box that only tells.
std::string promptFor(MessageButtons buttons);

/// What a line means: the first letter or the whole of an answer, without regard to case.
std::optional<MessageAnswer> readAnswer(std::string_view line, MessageButtons buttons);

/// What is taken when nobody answers: Cancel, or No where there is no Cancel.
MessageAnswer answerOfNobody(MessageButtons buttons);

}  // namespace tamrikon
