// A module in memory, without an IDE around it: tests fill the public fields by hand. Editing its
// lines moves no member.
#pragma once

#include <deque>
#include <string>
#include <utility>
#include <vector>

#include "ide/ide.h"

namespace tamrikon::test {

struct FakeMember final : Member {
  FakeMember(std::string name, MemberType type, int location, tamrikon::Scope scope,
             tamrikon::Members& owner)
      : name(std::move(name)), type(type), location(location), scope(scope), owner(&owner) {}

  std::string Name() const override { return name; }
  MemberType Type() const override { return type; }
  tamrikon::Scope Scope() const override { return scope; }
  tamrikon::Members& Collection() const override { return *owner; }
  int CodeLocation() const override { return location; }
  std::string Description() const override { return description; }
  void setDescription(const std::string& text) override { description = text; }
  int HelpContextID() const override { return helpId; }
  void setHelpContextID(int id) override { helpId = id; }

  std::string name;
  MemberType type;
  int location;  // logical line
  tamrikon::Scope scope;
  tamrikon::Members* owner;
  std::string description;
  int helpId = 0;
};

struct FakeMembers final : Members {
  int Count() const override { return static_cast<int>(items.size()); }
  Member& Item(int number) const override { return items.at(static_cast<std::size_t>(number - 1)); }
  CodeModule& Parent() const override { return *module; }

  mutable std::deque<FakeMember> items;
  CodeModule* module = nullptr;
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
  int start;  // of the blanks and comments above it
  int body;
  int end;
};

struct FakeModule final : CodeModule {
  explicit FakeModule(std::vector<std::string> lines = {}, std::string name = "Module1")
      : name(std::move(name)), lines(std::move(lines)) {
    members.module = pane.module = this;
  }
  FakeModule(const FakeModule&) = delete;

  FakeMember& add(const std::string& member, MemberType type, int location,
                  Scope scope = Scope::public_) {
    return members.items.emplace_back(member, type, location, scope, members);
  }

  std::string Name() const override { return name; }
  VBComponent& Parent() const override {
    if (component == nullptr) throw IdeError("no component");
    return *component;
  }
  tamrikon::Members& Members() const override { return members; }
  tamrikon::CodePane& CodePane() const override { return pane; }
  int CountOfLines() const override { return static_cast<int>(lines.size()); }
  int CountOfDeclarationLines() const override { return declarationLines; }

  std::string Lines(int start, int count) const override {
    if (start < 1 || count < 0 || start - 1 + count > CountOfLines())
      throw IdeError("no such line");
    std::string text;
    for (int line = start; line < start + count; ++line) {
      if (line > start) text += "\r\n";
      text += lines[static_cast<std::size_t>(line - 1)];
    }
    return text;
  }
  void InsertLines(int line, const std::string& text) override {
    if (line < 1 || line > CountOfLines() + 1) throw IdeError("no such line");
    auto at = lines.insert(lines.begin() + (line - 1), std::string());
    for (std::size_t i = 0; i < text.size(); ++i) {
      const bool lineEnd = text[i] == '\r' || text[i] == '\n';
      if (lineEnd) {
        at = lines.insert(at + 1, std::string());
        if (text.compare(i, 2, "\r\n") == 0) ++i;
      } else {
        *at += text[i];
      }
    }
  }
  void DeleteLines(int start, int count) override {
    lines.erase(lines.begin() + (start - 1), lines.begin() + (start - 1 + count));
  }

  std::string ProcOfLine(int line, ProcKind& kind) const override {
    for (const FakeProc& proc : procs) {
      if (line < proc.start || line > proc.end) continue;
      kind = proc.kind;
      return proc.name;
    }
    throw IdeError("no procedure");
  }
  int ProcStartLine(const std::string& proc, ProcKind kind) const override {
    return find(proc, kind).start;
  }
  int ProcCountLines(const std::string& proc, ProcKind kind) const override {
    return find(proc, kind).end - find(proc, kind).start + 1;
  }
  int ProcBodyLine(const std::string& proc, ProcKind kind) const override {
    return find(proc, kind).body;
  }
  const FakeProc& find(const std::string& proc, ProcKind kind) const {
    for (const FakeProc& found : procs) {
      if (found.name == proc && found.kind == kind) return found;
    }
    throw IdeError("no procedure");
  }

  std::string name;
  std::vector<std::string> lines;
  std::vector<FakeProc> procs;
  int declarationLines = 0;
  VBComponent* component = nullptr;
  mutable FakeMembers members;
  mutable FakePane pane;
};

}  // namespace tamrikon::test
