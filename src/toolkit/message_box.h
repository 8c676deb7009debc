// What a message box shows and what the user may answer.
#pragma once

#include <string>

namespace tamrikon {

enum class MessageButtons { ok, okCancel, retryCancel, yesNo, yesNoCancel };
enum class MessageIcon { none, exclamation, question, information };
enum class MessageAnswer { ok, cancel, abort, retry, ignore, yes, no };

struct MessageBox {
  std::string title;
  std::string text;
  MessageButtons buttons = MessageButtons::ok;
  MessageIcon icon = MessageIcon::exclamation;
};

}  // namespace tamrikon
