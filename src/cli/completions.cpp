#include "cli/completions.h"

#include <CLI/CLI.hpp>

#include "base/paths.h"
#include "cli/template_names.h"
#include "host/host_ide.h"
#include "platform/code_page.h"
#include "platform/data_folder.h"
#include "settings/setting_fields.h"
#include "settings/settings_file.h"

namespace tamrikon {
namespace {

constexpr const char* kProjects = ":files vbp|vbg";

class Completions {
 public:
  Completions(const CLI::App& app, const std::vector<std::string>& words, std::ostream& out)
      : app_(app), out_(out), words_(words) {
    if (words_.empty()) words_.emplace_back();
    current_ = words_.back();
    words_.pop_back();
  }

  void print() {
    readWords();
    if (option_ != nullptr) return printValues(option_->get_lnames().front());
    if (current_.starts_with('-')) return printOptions(command_ == nullptr ? app_ : *command_);
    if (command_ == nullptr || command_->get_name() == "help") return printCommands();
    printOperands(command_->get_name());
  }

 private:
  /// What the words before the last one say: the command, its operands, and the option whose value
  /// comes now.
  void readWords() {
    for (const std::string& word : words_) {
      if (option_ != nullptr) {
        option_ = nullptr;
      } else if (word.starts_with("-")) {
        option_ = command_ == nullptr ? nullptr : command_->get_option_no_throw(word);
        if (option_ != nullptr && option_->get_items_expected_max() == 0) option_ = nullptr;
      } else if (command_ == nullptr) {
        const auto named =
            app_.get_subcommands([&](const CLI::App* each) { return each->get_name() == word; });
        if (!named.empty()) command_ = named.front();
      } else {
        operands_.push_back(word);
      }
    }
  }

  void put(const std::string& word, const std::string& description) {
    if (word.starts_with(current_)) out_ << word << '\t' << description << '\n';
  }

  void printCommands() {
    for (const CLI::App* command : app_.get_subcommands({})) {
      put(command->get_name(), command->get_description());
    }
  }

  void printOptions(const CLI::App& app) {
    for (const CLI::Option* option : app.get_options()) {
      for (const std::string& name : option->get_lnames()) {
        put("--" + name, option->get_description());
      }
    }
  }

  void printValues(const std::string& option) {
    if (option == "codepage" || option == "keep-codepage") {
      for (const int number : CodePage::numbers()) put(std::to_string(number), "code page");
    } else if (option == "template") {
      const std::string folder = joinPath(dataFolder(), "Templates");
      for (const std::string& name : templateNames(nativeFileSystem(), folder)) {
        put(std::string(baseName(name)), "template");
      }
      out_ << ":files tmkt\n";
    } else if (option == "set") {
      printSettings();
    } else {
      out_ << (option == "output" ? ":folders\n" : ":files\n");
    }
  }

  void printSettings() {
    ProjectSettings settings;
    for (const SettingField& field : settingFields(settings)) put(field.key + "=", "setting");
    put("comModules=", "setting");
    out_ << ":nospace\n";
  }

  void printOperands(const std::string& command) {
    if (command == "templates") return;
    if (operands_.empty()) {
      out_ << kProjects << '\n';
    } else if (command == "settings") {
      printSettings();
    } else if (command == "comment" || command == "example") {
      printModules(operands_.front(), command == "example" ? ":" : "");
    }
  }

  void printModules(const std::string& project, const std::string& behind) {
    std::string ignored;
    FileSystem& files = nativeFileSystem();
    const auto ide = HostIde::open(
        files, files.absolute(project), nullptr, [](const Diagnostic&) {}, ignored);
    if (!ide) return;
    for (CodeModule* module : SettingsFile::codeModules(*ide)) {
      put(module->Name() + behind, "module");
    }
    if (!behind.empty()) out_ << ":nospace\n";
  }

  const CLI::App& app_;
  std::ostream& out_;
  std::vector<std::string> words_;
  std::string current_;
  const CLI::App* command_ = nullptr;
  const CLI::Option* option_ = nullptr;
  std::vector<std::string> operands_;
};

}  // namespace

void printCompletions(const CLI::App& app, const std::vector<std::string>& words,
                      std::ostream& out) {
  Completions(app, words, out).print();
}

}  // namespace tamrikon
