// What a compile shows and asks, whoever shows it: a dialog, a terminal or a test.
#pragma once

#include <cstddef>
#include <string>

namespace tamrikon {

enum class MessageButtons { retryCancel, yesNoCancel };
enum class MessageAnswer { ok, cancel, abort, retry, ignore, yes, no };

class UserInterface {
 public:
  virtual ~UserInterface() = default;

  /// Adds a message to the progress log.
  virtual void addMessage(const std::string& text) = 0;

  virtual void setStatusLine(const std::string& text) = 0;

  /// How many topics of how many are written.
  virtual void setProgress(std::size_t done, std::size_t all) = 0;

  /// A message box with the exclamation icon.
  virtual MessageAnswer messageBox(const std::string& title, const std::string& text,
                                   MessageButtons buttons) = 0;

  /// Lets pending events run; that is how a request to cancel gets through.
  virtual void pumpEvents() = 0;
};

}  // namespace tamrikon
