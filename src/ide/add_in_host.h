// What an add-in needs of the program that runs it, beside the surface of the IDE.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "base/diagnostic.h"

namespace tamrikon {

class CodeModule;
class CodePage;
class Toolkit;
class VBE;
class VBProject;

/// Messages to a window that an add-in looks at, with their numbers on Windows; all others are
/// passed on as they are.
enum class WindowMessage : std::uint32_t { sysColorChange = 0x0015 };

/// Handles one message to a window.
using WindowProcedure = std::function<void(std::uint32_t message)>;

class AddInHost {
 public:
  virtual ~AddInHost() = default;

  /// The same object as long as the program runs, whether or not a project is open.
  virtual VBE& application() = 0;
  virtual Toolkit& toolkit() = 0;

  /// Of a project that is open.
  virtual const CodePage& codePageOf(const VBProject& project) = 0;

  /// Runs `edit`, which changes `module`, as one step to undo.
  virtual void asOneEdit(CodeModule& module, const std::function<void()>& edit) = 0;

  /// Shows what is wrong with an add-in's work.
  virtual void report(const Diagnostic& fault) = 0;

  /// 0xRRGGBB
  virtual std::uint32_t buttonFaceColour() = 0;

  /// Puts `procedure` in place of the window's own one, which is the result. A null window, or a
  /// window that isn't there, fails with IdeError.
  virtual WindowProcedure setWindowProcedure(std::uintptr_t window, WindowProcedure procedure) = 0;
};

}  // namespace tamrikon
