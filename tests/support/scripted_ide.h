// An IDE for add-ins over projects on disk: its bars can be missing, and each call of an add-in can
// be made to fail.
#pragma once

#include <algorithm>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "host/project_event_sources.h"
#include "ide/add_in_host.h"
#include "platform/user_settings.h"
#include "source/edit_group.h"
#include "support/open_project.h"
#include "toolkit/toolkit.h"

namespace tamrikon::test {

/// The calls that an add-in makes, but those that only read a project.
struct Calls {
  std::vector<std::string> names;
  std::size_t failAt = 0;  // the number of the one that fails; 0: none
  std::string failing;     // the name of those that fail

  void operator()(const std::string& name) {
    names.push_back(name);
    if (names.size() == failAt || name == failing) throw IdeError(name + " fails");
  }
  void failNext(std::size_t number) { names.clear(), failAt = number; }
};

struct ScriptedBar;

struct ScriptedControl final : CommandBarControl {
  ScriptedControl(Calls& log, ScriptedBar& home) : call(log), bar(home) {}
  std::string Caption() const override { return caption; }
  void setCaption(const std::string& text) override { call("Caption"), caption = text; }
  std::string ToolTipText() const override { return toolTip; }
  void setToolTipText(const std::string& text) override { call("ToolTipText"), toolTip = text; }
  void PasteFace(const Face& picture) override { call("PasteFace"), face = picture; }
  void Delete() override;

  Calls& call;
  ScriptedBar& bar;
  std::string caption;
  std::string toolTip;
  Face face;
};

struct ScriptedBar final : CommandBar, CommandBarControls {
  ScriptedBar(Calls& log, std::string barName) : call(log), name(std::move(barName)) {}
  std::string Name() const override { return name; }
  CommandBarControls& Controls() const override {
    call("Controls");
    return const_cast<ScriptedBar&>(*this);
  }
  int Count() const override { return call("Count"), static_cast<int>(items.size()); }
  CommandBarControl& Item(int number) const override { return *items.at(std::size_t(number - 1)); }
  CommandBarControl& Add(ControlType, int before) override {
    call("Add");
    const auto place = before == 0 ? items.end() : items.begin() + (before - 1);
    return **items.insert(place, std::make_unique<ScriptedControl>(call, *this));
  }

  Calls& call;
  std::string name;
  std::vector<std::unique_ptr<ScriptedControl>> items;
};

inline void ScriptedControl::Delete() {
  call("Delete");
  std::erase_if(bar.items, [this](const auto& item) { return item.get() == this; });
}

struct ScriptedBars final : CommandBars {
  explicit ScriptedBars(Calls& log) : call(log) {}
  CommandBar* Item(const std::string& name) const override { return call("Item"), find(name); }
  CommandBar* Item(int number) const override {
    call("Item");
    return std::size_t(number) <= bars.size() ? bars[std::size_t(number - 1)].get() : nullptr;
  }
  ScriptedBar* find(const std::string& name) const {
    for (const auto& bar : bars) {
      if (bar->name == name) return bar.get();
    }
    return nullptr;
  }

  Calls& call;
  std::vector<std::unique_ptr<ScriptedBar>> bars;
};

struct ScriptedEvents final : Events {
  struct Clicks final : tamrikon::CommandBarEvents {
    Clicks(std::map<Clicks*, CommandBarControl*>& all, CommandBarControl* control) : sources(all) {
      sources[this] = control;
    }
    ~Clicks() override { sources.erase(this); }
    std::map<Clicks*, CommandBarControl*>& sources;
  };
  explicit ScriptedEvents(Calls& log) : call(log) {}
  std::unique_ptr<tamrikon::CommandBarEvents> CommandBarEvents(CommandBarControl* item) override {
    call("CommandBarEvents");
    if (item == nullptr) throw IdeError("there is no item");
    return std::make_unique<Clicks>(clicks, item);
  }
  std::unique_ptr<tamrikon::VBProjectsEvents> VBProjectsEvents() override {
    return call("VBProjectsEvents"), projects.make();
  }

  Calls& call;
  std::map<Clicks*, CommandBarControl*> clicks;
  ProjectEventSources projects;
};

class ScriptedIde final : public VBE, public AddInHost, public UserSettings {
 public:
  ScriptedIde(Toolkit& toolkit, const std::vector<std::string>& barNames) : toolkit_(toolkit) {
    for (const std::string& name : barNames) {
      bars.bars.push_back(std::make_unique<ScriptedBar>(calls, name));
    }
  }

  void open(const std::string& path) {
    project = openProject(path);
    heard_ = project->Events().VBProjectsEvents();
    heard_->ItemActivated = [this](VBProject& p) { events.projects.projectActivated(p); };
    heard_->ItemRemoved = [this](VBProject& p) { events.projects.projectRemoved(p); };
    events.projects.projectAdded(project->ActiveVBProject());
  }
  void click(const std::string& bar, const std::string& caption) {
    for (const auto& item : bars.find(bar)->items) {
      if (item->caption != caption) continue;
      for (const auto& [source, control] : std::map(events.clicks)) {
        if (control == item.get()) return std::function(source->Click)();
      }
    }
    throw IdeError("nobody hears of " + caption);
  }
  void send(std::uint32_t message) { WindowProcedure{procedure}(message); }

  VBProject& ActiveVBProject() const override { return opened().ActiveVBProject(); }
  tamrikon::VBProjects& VBProjects() const override {
    calls("VBProjects");
    return project ? static_cast<tamrikon::VBProjects&>(project->VBProjects()) : none_;
  }
  CodePane* ActiveCodePane() const override {
    return project ? project->ActiveCodePane() : nullptr;
  }
  void setActiveCodePane(CodePane& pane) override { opened().setActiveCodePane(pane); }
  tamrikon::Windows& Windows() const override { return calls("Windows"), opened().Windows(); }
  Window* ActiveWindow() const override { return calls("ActiveWindow"), opened().ActiveWindow(); }
  Window& MainWindow() const override { return calls("MainWindow"), main_; }
  tamrikon::CommandBars& CommandBars() const override { return calls("CommandBars"), bars; }
  tamrikon::Events& Events() const override { return calls("Events"), events; }

  VBE& application() override { return *this; }
  Toolkit& toolkit() override { return toolkit_; }
  const CodePage& codePageOf(const VBProject& p) override {
    return calls("codePageOf"), opened().codePageOf(p);
  }
  void asOneEdit(CodeModule& module, const std::function<void()>& edit) override {
    const EditGroup group(static_cast<HostModule&>(module));
    edit();
  }
  void report(const Diagnostic& fault) override { faults.push_back(lineOf(fault)); }
  std::uint32_t buttonFaceColour() override { return calls("buttonFaceColour"), buttonFace; }
  WindowProcedure setWindowProcedure(std::uintptr_t window, WindowProcedure next) override {
    calls("setWindowProcedure");
    if (window != 7) throw IdeError("there is no such window");
    return std::exchange(procedure, std::move(next));
  }
  std::string get(const std::string& section, const std::string& key,
                  const std::string& defaultValue) const override {
    calls("get");
    const auto found = kept.find(section + "/" + key);
    return found == kept.end() ? defaultValue : found->second;
  }
  bool set(const std::string& section, const std::string& key, const std::string& value) override {
    calls("set");
    kept[section + "/" + key] = value;
    return true;
  }

  mutable Calls calls;
  mutable ScriptedBars bars{calls};
  mutable ScriptedEvents events{calls};
  std::unique_ptr<HostIde> project;
  std::uint32_t buttonFace = 0xF0F0F0;
  std::vector<std::uint32_t> messages;  // that came through to the main window
  WindowProcedure procedure = [this](std::uint32_t message) { messages.push_back(message); };
  std::map<std::string, std::string> kept;  // by section/key
  std::vector<std::string> faults;

 private:
  struct NoProjects final : tamrikon::VBProjects {
    int Count() const override { return 0; }
    VBProject& Item(int) const override { throw IdeError("there is no project"); }
  };
  struct Main final : Window {
    void Close() override {}
    void SetFocus() override {}
    std::uintptr_t HWnd() const override { return 7; }
  };
  HostIde& opened() const {
    if (!project) throw IdeError("no project is open");
    return *project;
  }

  Toolkit& toolkit_;
  std::unique_ptr<tamrikon::VBProjectsEvents> heard_;
  mutable NoProjects none_;
  mutable Main main_;
};

}  // namespace tamrikon::test
