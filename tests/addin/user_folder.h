// A user of a test's own, with nothing in the registry yet.
#pragma once

#include <stdlib.h>

#include <string>

#include "support/temp_folder.h"

namespace tamrikon::test {

class UserFolder {
 public:
  UserFolder() { ::setenv("XDG_CONFIG_HOME", folder_.path().c_str(), 1); }
  ~UserFolder() { ::unsetenv("XDG_CONFIG_HOME"); }
  UserFolder(const UserFolder&) = delete;
  UserFolder& operator=(const UserFolder&) = delete;

  std::string registry() const { return folder_.get("tamrikon/registry.txt"); }
  void putRegistry(const std::string& text) { folder_.put("tamrikon/registry.txt", text); }
  const TempFolder& folder() const { return folder_; }

 private:
  TempFolder folder_;
};

}  // namespace tamrikon::test
