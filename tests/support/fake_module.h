// A code module of lines alone: it has no members, procedures or component.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "base/text.h"
#include "ide/ide.h"

namespace tamrikon::test {

struct FakePane final : CodePane {
  Selection GetSelection() const override { return selection; }
  void SetSelection(const Selection& wanted) override {
    if (fails) throw IdeError("no window");
    selection = wanted;
  }
  void setTopLine(int line) override { topLine = line; }
  tamrikon::CodeModule& CodeModule() const override { throw IdeError("no module"); }
  tamrikon::Window& Window() const override { throw IdeError("no window"); }

  Selection selection;
  int topLine = 1;
  bool fails = false;
};

struct FakeModule : CodeModule {
  explicit FakeModule(std::vector<std::string> moduleLines = {}) : lines(std::move(moduleLines)) {}

  std::string Name() const override { return "Module1"; }
  VBComponent& Parent() const override { throw IdeError("no component"); }
  tamrikon::Members& Members() const override { throw IdeError("no members"); }
  tamrikon::CodePane& CodePane() const override { return onCall(), pane; }
  int CountOfLines() const override { return onCall(), static_cast<int>(lines.size()); }
  int CountOfDeclarationLines() const override { return CountOfLines(); }
  std::string Lines(int start, int count) const override {
    onCall();
    const auto past = static_cast<std::size_t>(start + count);
    if (start < 1 || past > lines.size() + 1) throw IdeError("no such line");
    return join({lines.begin() + (start - 1), lines.begin() + (start - 1 + count)}, "\r\n");
  }
  SharedLines ShareLines() const override {
    onCall();
    const auto copy = std::make_shared<std::vector<std::string>>(lines);
    return {copy, std::make_shared<std::vector<std::string_view>>(copy->begin(), copy->end())};
  }
  void InsertLines(int line, const std::string& text) override {
    onCall();
    const std::string lf = replaceAll(replaceAll(text, "\r\n", "\n"), "\r", "\n");
    const auto pieces = split(lf, '\n');
    lines.insert(lines.begin() + (line - 1), pieces.begin(), pieces.end());
  }
  void DeleteLines(int start, int count) override {
    onCall();
    lines.erase(lines.begin() + (start - 1), lines.begin() + (start - 1 + count));
  }
  std::string ProcOfLine(int, ProcKind&) const override { throw IdeError("no procedure"); }
  int ProcStartLine(const std::string&, ProcKind) const override { throw IdeError("none"); }
  int ProcCountLines(const std::string&, ProcKind) const override { throw IdeError("none"); }
  int ProcBodyLine(const std::string&, ProcKind) const override { throw IdeError("none"); }
  bool HasProc(const std::string&, ProcKind) const override { return false; }

  std::vector<std::string> lines;
  std::function<void()> onCall = [] {};  // of what the comment editor calls
  mutable FakePane pane;
};

}  // namespace tamrikon::test
