// What asks the user and opens documents, where there are windows and where there are none.
#pragma once

#include <string>

#include "toolkit/message_box.h"

namespace tamrikon {

class Prompter {
 public:
  virtual ~Prompter() = default;

  virtual MessageAnswer messageBox(const MessageBox& box) = 0;

  /// Opens a document in the program that belongs to it, and doesn't wait for that program. If that
  /// can't be done, `failure` is shown, at once or later. False if it has failed already.
  virtual bool openDocument(const std::string& path, const MessageBox& failure) = 0;
};

}  // namespace tamrikon
