// An IDE in memory: tests fill the public fields by hand. Editing a module moves no member.
#pragma once

#include <deque>
#include <string>
#include <utility>
#include <vector>

#include "base/text.h"
#include "ide/ide.h"

namespace tamrikon::test {

struct FakeMember final : Member {
  std::string Name() const override { return name; }
  MemberType Type() const override { return type; }
  tamrikon::Scope Scope() const override { return scope; }
  Members& Collection() const override { return *collection; }
  int CodeLocation() const override { return location; }
  std::string Description() const override { return description; }
  void setDescription(const std::string& text) override { description = text; }
  int HelpContextID() const override { return helpId; }
  void setHelpContextID(int id) override { helpId = id; }

  std::string name, description;
  MemberType type = MemberType::method;
  int location = 1;  // logical line
  int helpId = 0;
  tamrikon::Scope scope = Scope::public_;
  Members* collection = nullptr;
};

struct FakePane final : CodePane {
  Selection GetSelection() const override { return selection; }
  void SetSelection(const Selection& wanted) override {
    if (fails) throw IdeError("no window");
    selection = wanted;
  }
  void setTopLine(int line) override { topLine = line; }
  tamrikon::CodeModule& CodeModule() const override { return *module; }

  Selection selection;
  int topLine = 1;
  bool fails = false;
  tamrikon::CodeModule* module = nullptr;
};

struct FakeProc {
  std::string name;
  ProcKind kind;
  int start, body, end;  // from the blanks and comments above it; declaration; last line
};

struct FakeModule final : CodeModule {
  struct List final : tamrikon::Members {
    int Count() const override { return static_cast<int>(items.size()); }
    Member& Item(int n) const override { return items.at(static_cast<std::size_t>(n - 1)); }
    CodeModule& Parent() const override { return *module; }
    mutable std::deque<FakeMember> items;
    CodeModule* module = nullptr;
  };

  explicit FakeModule(std::vector<std::string> lines = {}, std::string name = "Module1")
      : name(std::move(name)), lines(std::move(lines)) {
    members.module = pane.module = this;
  }
  FakeModule(const FakeModule&) = delete;

  FakeMember& add(const std::string& member, MemberType type, int location) {
    FakeMember& added = members.items.emplace_back();
    added.name = member, added.type = type, added.location = location;
    added.collection = &members;
    return added;
  }

  std::string Name() const override { return name; }
  VBComponent& Parent() const override { return *component; }
  tamrikon::Members& Members() const override { return members; }
  tamrikon::CodePane& CodePane() const override { return pane; }
  int CountOfLines() const override { return static_cast<int>(lines.size()); }
  int CountOfDeclarationLines() const override { return declarationLines; }
  std::string Lines(int start, int count) const override {
    if (start < 1 || start + count > CountOfLines() + 1) throw IdeError("no such line");
    return join({lines.begin() + (start - 1), lines.begin() + (start - 1 + count)}, "\r\n");
  }
  void InsertLines(int line, const std::string& text) override {
    const std::string lf = replaceAll(replaceAll(text, "\r\n", "\n"), "\r", "\n");
    const auto pieces = split(lf, '\n');
    lines.insert(lines.begin() + (line - 1), pieces.begin(), pieces.end());
  }
  void DeleteLines(int start, int count) override {
    lines.erase(lines.begin() + (start - 1), lines.begin() + (start - 1 + count));
  }
  std::string ProcOfLine(int line, ProcKind& kind) const override {
    for (const FakeProc& proc : procs) {
      if (line >= proc.start && line <= proc.end) return kind = proc.kind, proc.name;
    }
    throw IdeError("no procedure");
  }
  int ProcStartLine(const std::string& n, ProcKind k) const override { return find(n, k).start; }
  int ProcCountLines(const std::string& n, ProcKind k) const override {
    return find(n, k).end - find(n, k).start + 1;
  }
  int ProcBodyLine(const std::string& n, ProcKind k) const override { return find(n, k).body; }
  const FakeProc& find(const std::string& proc, ProcKind kind) const {
    for (const FakeProc& p : procs) {
      if (p.name == proc && p.kind == kind) return p;
    }
    throw IdeError("no procedure");
  }

  std::string name;
  std::vector<std::string> lines;
  std::vector<FakeProc> procs;
  int declarationLines = 0;
  VBComponent* component = nullptr;
  mutable List members;
  mutable FakePane pane;
};

struct FakeComponent final : VBComponent {
  ComponentType Type() const override { return type; }
  tamrikon::CodeModule* CodeModule() const override { return &module; }
  std::string Description() const override { return description; }
  void setDescription(const std::string& text) override { description = text; }
  int HelpContextID() const override { return helpId; }
  void setHelpContextID(int id) override { helpId = id; }

  explicit FakeComponent(ComponentType type = ComponentType::standardModule) : type(type) {
    module.component = this;
  }
  ComponentType type;
  std::string description;
  int helpId = 0;
  mutable FakeModule module;
};

}  // namespace tamrikon::test
