// The code of a component, as the IDE surface shows it.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "host/host_member.h"
#include "host/module_analysis.h"
#include "ide/ide.h"
#include "source/edit_group.h"
#include "source/source_store.h"
#include "vb/conditional_expression.h"

namespace tamrikon {

class HostComponent;

/// Several modules, one for each project that names the file, can stand over one source: an edit
/// through one shows in all.
class HostModule final : public CodeModule {
 public:
  /// All but the name must outlive the module. The source is decoded; `name` is for one whose head
  /// has none.
  HostModule(HostComponent& component, Source& source, std::string name,
             const ConditionalConstants& constants);
  ~HostModule() override;

  std::string Name() const override;
  VBComponent& Parent() const override;
  tamrikon::Members& Members() const override { return members_; }
  tamrikon::CodePane& CodePane() const override;

  int CountOfLines() const override;
  int CountOfDeclarationLines() const override;

  /// Lines behind the last one are left out; a start outside the module fails.
  std::string Lines(int start, int count) const override;
  SharedLines ShareLines() const override { return source_.file().shareLines(); }
  void InsertLines(int line, const std::string& text) override;

  /// Fails, and deletes nothing, unless all of the lines are there.
  void DeleteLines(int start, int count) override;

  std::string ProcOfLine(int line, ProcKind& kind) const override;
  int ProcStartLine(const std::string& name, ProcKind kind) const override;
  int ProcCountLines(const std::string& name, ProcKind kind) const override;
  int ProcBodyLine(const std::string& name, ProcKind kind) const override;
  bool HasProc(const std::string& name, ProcKind kind) const override;

  // For people who edit. What they do goes to the source, and so do its undo steps: all modules
  // over it share them. InsertLines, DeleteLines and the writing of descriptions and help context
  // IDs are steps too.

  /// Replaces `count` lines by those of `text`, divided as InsertLines does; with 0, inserts before
  /// `first`, which may be one past the last line. Lines that stay the same are left alone, byte
  /// for byte. A line that is changed in its place keeps the hidden attribute lines behind it, and
  /// so do the parts of one that is divided or joined; those of lines that go, go with them, and
  /// come back with undo(). Other than with InsertLines, all of `text` is visible, also a line that
  /// begins with "Attribute": somebody may be typing it. It becomes a hidden one when the file is
  /// read again. Fails, and changes nothing, unless all of the lines are there.
  void replaceLines(int first, int count, const std::string& text, EditKind kind = EditKind::step);

  /// Each step back or forth restores exactly what was there, hidden lines and line ends included.
  /// False if there is nothing to undo or redo, and while an EditGroup lives.
  bool undo() { return file().undo(); }
  bool redo() { return file().redo(); }
  bool canUndo() const { return file().history().canUndo(); }
  bool canRedo() const { return file().history().canRedo(); }

  /// Ends a run of EditKind::typing: the next keystroke begins a step of its own. Any other edit,
  /// an undo and a save end it too.
  void endTyping() { file().history().endTyping(); }

  /// The observer is told of all changes of the source until it stops, which it must do before it
  /// dies.
  void observe(SourceObserver& observer) { file().observers().add(observer); }
  void stopObserving(SourceObserver& observer) { file().observers().remove(observer); }

  /// Whether the source differs from what was read or saved last.
  bool isChanged() const { return file().isChanged(); }

  /// What has changed in it since then.
  EditSubjects changedSubjects() const { return file().history().changedSubjects(); }

  /// Absolute path of the source.
  const std::string& path() const { return source_.path(); }

  /// Of the lines as they are: made when it is first asked for, and again after an edit.
  const ModuleAnalysis& analysis() const;
  MemberAttributes& attributes() const { return source_.attributes(); }
  HostComponent& component() const { return component_; }
  Source& source() const { return source_; }

 private:
  struct Place {
    int start;
    int body;
    int count;
  };
  void readName() const;
  std::optional<Place> findPlace(const std::string& name, ProcKind kind) const;
  Place placeOf(const std::string& name, ProcKind kind) const;
  SourceFile& file() const { return source_.file(); }
  void requireLines(int start, int count) const;

  HostComponent& component_;
  Source& source_;
  std::string nameInProject_;
  mutable std::string name_;
  mutable unsigned generation_ = 0;  // of the source when name_ was found
  const ConditionalConstants& constants_;
  mutable HostMembers members_;
  mutable std::unique_ptr<ModuleAnalysis> analysis_;
  mutable unsigned revision_ = 0;  // of the source when analysis_ was made
};

}  // namespace tamrikon
