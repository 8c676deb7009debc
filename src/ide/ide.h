// The IDE's extensibility model, as far as the program calls on it: projects, components, modules,
// members and lines of source. The names are those of the IDE. Lines and columns count from 1.
//
// The IDE owns all of these objects and keeps each of them, under the same address, as long as its
// project is open: others hold plain pointers and compare them to tell objects apart. A call that
// fails throws IdeError.
#pragma once

#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "ide/command_bars.h"
#include "ide/component_kind.h"
#include "ide/events.h"
#include "ide/windows.h"
#include "vb/declaration_kinds.h"
#include "vb/shared_lines.h"

namespace tamrikon {

class CodeModule;
class VBComponent;
class VBProject;

class IdeError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

enum class MemberType { method = 1, property = 2, variable = 3, event = 4, constant = 5 };

class Members;

class Member {
 public:
  virtual ~Member() = default;
  virtual std::string Name() const = 0;
  virtual MemberType Type() const = 0;
  virtual tamrikon::Scope Scope() const = 0;
  virtual Members& Collection() const = 0;

  /// Line of the declaration, a statement with its continuation lines counting as one.
  virtual int CodeLocation() const = 0;

  virtual std::string Description() const = 0;
  virtual void setDescription(const std::string& text) = 0;
  virtual int HelpContextID() const = 0;
  virtual void setHelpContextID(int id) = 0;

  /// The same for a number that nobody has asked to find in the source: an IDE that can may hold it
  /// in memory alone.
  virtual void holdHelpContextID(int id) { setHelpContextID(id); }
};

/// All members of a module, a property being one.
class Members {
 public:
  virtual ~Members() = default;
  virtual int Count() const = 0;
  virtual Member& Item(int number) const = 0;
  virtual CodeModule& Parent() const = 0;
};

/// Columns count characters, and the end column is one past the last one.
struct Selection {
  int startLine = 1;
  int startColumn = 1;
  int endLine = 1;
  int endColumn = 1;
};

/// The window that shows a module's source.
class CodePane {
 public:
  virtual ~CodePane() = default;
  virtual Selection GetSelection() const = 0;
  virtual void SetSelection(const Selection& selection) = 0;
  virtual void setTopLine(int line) = 0;
  virtual tamrikon::CodeModule& CodeModule() const = 0;
  virtual tamrikon::Window& Window() const = 0;
};

class CodeModule {
 public:
  virtual ~CodeModule() = default;
  virtual std::string Name() const = 0;
  virtual VBComponent& Parent() const = 0;
  virtual tamrikon::Members& Members() const = 0;

  /// Opens a window when none is open.
  virtual tamrikon::CodePane& CodePane() const = 0;

  virtual int CountOfLines() const = 0;
  virtual int CountOfDeclarationLines() const = 0;

  /// `count` lines from `start` on, CR LF between them and none behind the last.
  virtual std::string Lines(int start, int count) const = 0;

  /// All lines as they stand now, whatever becomes of the module later. The text of a module that
  /// nobody has edited isn't copied for it.
  virtual SharedLines ShareLines() const = 0;

  /// Puts `text`, its lines divided by CR LF, CR or LF, before `line`, which may be one past the
  /// last.
  virtual void InsertLines(int line, const std::string& text) = 0;
  virtual void DeleteLines(int start, int count) = 0;

  /// The procedure that `line` belongs to, and its kind; fails outside procedures.
  virtual std::string ProcOfLine(int line, ProcKind& kind) const = 0;

  /// Where the procedure with the blanks and comments above it starts, how many lines it has from
  /// there to its end, and the first line of its declaration. They fail if there is none.
  virtual int ProcStartLine(const std::string& name, ProcKind kind) const = 0;
  virtual int ProcCountLines(const std::string& name, ProcKind kind) const = 0;
  virtual int ProcBodyLine(const std::string& name, ProcKind kind) const = 0;

  /// Whether these three would work. Most properties lack a kind, and failures are slow.
  virtual bool HasProc(const std::string& name, ProcKind kind) const = 0;
};

class VBComponent {
 public:
  virtual ~VBComponent() = default;
  virtual ComponentType Type() const = 0;

  /// Null for a component without code, also when its file can't be read.
  virtual tamrikon::CodeModule* CodeModule() const = 0;

  virtual std::string Description() const = 0;
  virtual void setDescription(const std::string& text) = 0;
  virtual int HelpContextID() const = 0;
  virtual void setHelpContextID(int id) = 0;

  /// The same for a number that nobody has asked to find in the source: an IDE that can may hold it
  /// in memory alone.
  virtual void holdHelpContextID(int id) { setHelpContextID(id); }
};

class VBComponents {
 public:
  virtual ~VBComponents() = default;
  virtual int Count() const = 0;
  virtual VBComponent& Item(int number) const = 0;
};

class VBProject {
 public:
  virtual ~VBProject() = default;
  virtual std::string Name() const = 0;

  /// Path of the project's file; fails for a project that was never saved.
  virtual std::string FileName() const = 0;
  virtual std::string HelpFile() const = 0;
  virtual void setHelpFile(const std::string& path) = 0;
  virtual tamrikon::VBComponents& VBComponents() const = 0;
};

class VBProjects {
 public:
  virtual ~VBProjects() = default;
  virtual int Count() const = 0;
  virtual VBProject& Item(int number) const = 0;
};

/// The IDE's root object.
class VBE {
 public:
  virtual ~VBE() = default;
  virtual VBProject& ActiveVBProject() const = 0;
  virtual tamrikon::VBProjects& VBProjects() const = 0;

  /// Null if no window shows source.
  virtual CodePane* ActiveCodePane() const = 0;

  /// Makes the pane's project the active one as well.
  virtual void setActiveCodePane(CodePane& pane) = 0;

  virtual tamrikon::Windows& Windows() const = 0;

  /// Null if no window is in front.
  virtual Window* ActiveWindow() const = 0;
  virtual Window& MainWindow() const = 0;
  virtual tamrikon::CommandBars& CommandBars() const = 0;
  virtual tamrikon::Events& Events() const = 0;
};

/// Runs one step against the IDE; a step that fails is skipped. Whether it worked.
template <typename Step>
bool tryStep(Step&& step) {
  try {
    step();
    return true;
  } catch (const IdeError&) {
    return false;
  }
}

}  // namespace tamrikon
