// A fault that strikes once, at the operation of a given number.
#pragma once

#include <string>

namespace tamrikon::test {

class Fault {
 public:
  /// The `number`-th operation from now on fails; 0: none does.
  void strikeAt(int number) {
    left_ = number;
    struck_ = false;
  }

  /// Called by each operation: whether it is the one that fails.
  bool strikes(const std::string& path) {
    if (left_ == 0 || --left_ != 0) return false;
    path_ = path;
    return struck_ = true;
  }

  bool hasStruck() const { return struck_; }
  const std::string& path() const { return path_; }  // of the file that it struck

 private:
  int left_ = 0;
  bool struck_ = false;
  std::string path_;
};

}  // namespace tamrikon::test
