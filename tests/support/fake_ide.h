// Components, projects and an IDE in memory, around modules in memory.
#pragma once

#include <deque>
#include <string>

#include "support/fake_module.h"

namespace tamrikon::test {

struct FakeComponent final : VBComponent {
  FakeComponent(ComponentType type, std::string moduleName, std::vector<std::string> lines)
      : type(type), module(std::move(lines), std::move(moduleName)) {
    module.component = this;
  }

  ComponentType Type() const override { return type; }
  tamrikon::CodeModule* CodeModule() const override { return hasCode ? &module : nullptr; }
  std::string Description() const override { return description; }
  void setDescription(const std::string& text) override { description = text; }
  int HelpContextID() const override { return helpId; }
  void setHelpContextID(int id) override { helpId = id; }

  ComponentType type;
  mutable FakeModule module;
  bool hasCode = true;
  std::string description;
  int helpId = 0;
};

struct FakeProject final : VBProject, VBComponents {
  explicit FakeProject(std::string name = "Project1") : name(std::move(name)) {}

  FakeComponent& add(ComponentType type, const std::string& moduleName,
                     std::vector<std::string> lines = {}) {
    return components.emplace_back(type, moduleName, std::move(lines));
  }

  std::string Name() const override { return name; }
  std::string FileName() const override {
    if (fileName.empty()) throw IdeError("never saved");
    return fileName;
  }
  std::string HelpFile() const override { return helpFile; }
  void setHelpFile(const std::string& path) override { helpFile = path; }
  tamrikon::VBComponents& VBComponents() const override { return const_cast<FakeProject&>(*this); }
  int Count() const override { return static_cast<int>(components.size()); }
  VBComponent& Item(int number) const override {
    return components.at(static_cast<std::size_t>(number - 1));
  }

  std::string name;
  std::string fileName;
  std::string helpFile;
  mutable std::deque<FakeComponent> components;
};

struct FakeVBE final : VBE, VBProjects {
  VBProject& ActiveVBProject() const override { return projects.at(active); }
  tamrikon::VBProjects& VBProjects() const override { return const_cast<FakeVBE&>(*this); }
  CodePane* ActiveCodePane() const override { return pane; }
  void setActiveCodePane(CodePane& shown) override { pane = &shown; }
  int Count() const override { return static_cast<int>(projects.size()); }
  VBProject& Item(int number) const override {
    return projects.at(static_cast<std::size_t>(number - 1));
  }

  mutable std::deque<FakeProject> projects;
  std::size_t active = 0;
  CodePane* pane = nullptr;
};

}  // namespace tamrikon::test
