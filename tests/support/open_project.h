// Projects on disk, open as an IDE has them.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "host/host_ide.h"

namespace tamrikon::test {

/// Null, and a failure of the test, if there is nothing to open. Warnings are for nobody.
inline std::unique_ptr<HostIde> openProject(const std::string& path) {
  std::string why;
  auto ide = HostIde::open(
      nativeFileSystem(), path, nullptr, [](const Diagnostic&) {}, why);
  EXPECT_TRUE(ide) << why;
  return ide;
}

}  // namespace tamrikon::test
