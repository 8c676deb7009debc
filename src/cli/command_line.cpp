#include "cli/command_line.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <new>
#include <stdexcept>

#include "base/closest_word.h"
#include "cli/commands.h"
#include "cli/completions.h"
#include "cli/setting_overrides.h"
#include "cli/source_places.h"
#include "platform/code_page.h"

namespace tamrikon {
namespace {

void addCodePage(CLI::App& command, int& number) {
  command.add_option("--codepage", number, "Code page of the project, instead of the one found")
      ->check(CLI::IsMember(CodePage::numbers()));
}

void addProject(CLI::App& command, ProjectOptions& options) {
  command.add_option("PROJECT", options.project, "A project (.vbp) or a project group (.vbg)")
      ->required();
  addCodePage(command, options.codePage);
}

void addAllProjects(CLI::App& command, bool& all) {
  command.add_flag("--all-projects", all,
                   "Work on all projects of a group, not on the one that starts");
}

std::string checkSetting(const std::string& text) {
  return faultOfSetting(text);
}

void addCompile(CLI::App& app, CompileOptions& options) {
  CLI::App& command = *app.add_subcommand(
      "compile", "Compile the documentation of a project, or of all projects of a group");
  addProject(command, options);
  command.add_option("--set", options.settings, "Change a setting for this run")
      ->type_name("KEY=VALUE")
      ->take_all()
      ->allow_extra_args(false)
      ->check(checkSetting);
  command.add_flag("--add-modules", options.addsModules,
                   "Document the modules that the settings file doesn't list as well");
  command.add_option("--template", options.templateFile, "Template for this run")
      ->type_name("FILE");
  command.add_option("--output", options.outputFolder, "Output folder for this run")
      ->type_name("DIR");
  command.add_flag("--folders", options.hasFolders,
                   "Put the pages of each project of a group into a folder of its own below the "
                   "output folder");
  command.add_flag_callback(
      "--no-exec", [&options] { options.runsPrograms = false; }, "Run no external programs");
  command.add_flag("--save", options.saves,
                   "Save the sources and projects whose attributes the compile changed");
  command.add_option("--log", options.logFile, "Write the progress log there as well")
      ->type_name("FILE");
  command.add_flag("--quiet", options.quiet, "Print only the warnings and errors of the log");
  command
      .add_flag("--verbose", options.verbose,
                "Print the commands of the template's programs as well")
      ->excludes("--quiet");
  command.add_flag("--fail-on-warnings", options.failsOnWarnings,
                   "Exit with status 3 if there was a warning or an error");
  command.add_flag("--open", options.opens, "Open the finished documentation");
  command.add_flag("--timings", options.printsTimes,
                   "Print on the error output what the phases of the compile took");
}

void addComment(CLI::App& app, CommentOptions& options) {
  CLI::App& command =
      *app.add_subcommand("comment", "Insert skeleton comments into the sources of a project");
  addProject(command, options);
  command
      .add_option("TARGETS", options.targets,
                  "Module, Module.Member, Module.Member'get ('let, 'set) or Module:LINE")
      ->type_name("TARGET")
      ->check(faultOfCommentTarget);
  command.add_flag("--missing", options.missing,
                   "At all modules and members, or those of the modules that are given, that a "
                   "compile documents and that have no comment");
  addAllProjects(command, options.allProjects);
  command.add_flag("--dry-run", options.dryRun,
                   "Print as a unified diff what would change, and change nothing");
  command.callback([&options] {
    const std::string fault = faultOfTargets(options);
    if (!fault.empty()) throw CLI::ValidationError(fault);
  });
}

void addExample(CLI::App& app, ExampleOptions& options) {
  CLI::App& command = *app.add_subcommand(
      "example", "Print lines of a project's source as a code example for comments");
  addProject(command, options);
  command
      .add_option("RANGE", options.range,
                  "MODULE:LINE, MODULE:LINE-LINE or MODULE:LINE.COL-LINE.COL")
      ->type_name("MODULE:RANGE")
      ->required()
      ->check(faultOfSourceRange);
}

void addSettings(CLI::App& app, SettingsOptions& options) {
  CLI::App& command =
      *app.add_subcommand("settings", "Print the settings of a project, or change and save them");
  addProject(command, options);
  command.add_option("SETTINGS", options.settings, "Settings to change")
      ->type_name("KEY=VALUE")
      ->check(checkSetting);
  addAllProjects(command, options.allProjects);
  CLI::Option* const adds =
      command.add_flag("--add-modules", options.addsModules,
                       "Select the modules that the settings file doesn't list");
  command
      .add_flag("--leave-out-modules", options.leavesOutModules,
                "Note that the modules that aren't selected are left out on purpose")
      ->excludes(adds);
  command
      .add_option("--keep-codepage", options.keptCodePage,
                  "Keep the code page beside the project, so that it is taken in every run")
      ->type_name("NUMBER")
      ->check(CLI::IsMember(CodePage::numbers()));
}

/// "there is no KIND 'WORD'", and the one of `words` that may have been meant.
std::string faultOfWord(const std::string& kind, const std::string& word,
                        const std::vector<std::string>& words) {
  const std::string closest = closestWord(word, words);
  return "there is no " + kind + " '" + word + "'" +
         (closest.empty() ? "" : "; did you mean '" + closest + "'?");
}

const CLI::App* commandOf(const CLI::App& app, const std::string& name) {
  const auto named =
      app.get_subcommands([&](const CLI::App* command) { return command->get_name() == name; });
  return named.empty() ? nullptr : named.front();
}

/// What is wrong with the choice of a command or the names of options; empty if nothing is.
std::string faultOfNames(const CLI::App& app, const std::vector<std::string>& arguments) {
  if (arguments.empty()) return "a COMMAND is needed";
  const CLI::App* command = commandOf(app, arguments.front());
  if (command == nullptr && !arguments.front().starts_with('-')) {
    std::vector<std::string> names;
    for (const CLI::App* each : app.get_subcommands({})) names.push_back(each->get_name());
    return faultOfWord("command", arguments.front(), names);
  }
  std::vector<std::string> names;
  std::string letters;
  for (const CLI::App* each : {&app, command}) {
    if (each == nullptr) continue;
    for (const CLI::Option* option : each->get_options()) {
      for (const std::string& name : option->get_lnames()) names.push_back("--" + name);
      for (const std::string& name : option->get_snames()) letters += name;
    }
  }
  for (const std::string& argument : arguments) {
    if (argument == "--") break;
    const bool hasLetter = argument.size() > 1 && argument[0] == '-' && argument[1] != '-';
    if (hasLetter && letters.find(argument[1]) == std::string::npos) {
      return "there is no option '" + argument.substr(0, 2) + "'";
    }
    const std::string name = argument.substr(0, argument.find('='));
    if (!name.starts_with("--") || std::count(names.begin(), names.end(), name) != 0) continue;
    return faultOfWord("option", name, names);
  }
  return {};
}

/// "help COMMAND" means "COMMAND --help".
std::vector<std::string> withoutHelpCommand(std::vector<std::string> arguments) {
  if (arguments.empty() || arguments.front() != "help") return arguments;
  arguments.erase(arguments.begin());
  arguments.emplace_back("--help");
  return arguments;
}

/// Examples for each command, and what its exit status means.
void addFooters(CLI::App& app) {
  const std::string statuses = "\n\nExit status: 0 done, 1 failed or stopped, 2 wrong usage";
  const std::string warned = ", 3 warnings or errors\nwith --fail-on-warnings";
  const auto describe = [&](const std::string& command, const std::string& examples,
                            const std::string& more) {
    CLI::App& described = command.empty() ? app : *app.get_subcommand(command);
    described.footer("Examples:\n" + examples + statuses + more);
  };
  describe("",
           "  tamrikon compile Shop.vbp --template html --output site\n"
           "  tamrikon comment Shop.vbp --missing --dry-run\n"
           "  tamrikon help compile",
           warned);
  describe("compile",
           "  tamrikon compile Shop.vbp --template html --output site --open\n"
           "  tamrikon compile All.vbg --quiet --fail-on-warnings\n"
           "  tamrikon compile Shop.vbp --set comPrivate=1 --set comVariable=1",
           warned);
  describe("comment",
           "  tamrikon comment Shop.vbp Cart.Add Till:6\n"
           "  tamrikon comment All.vbg --missing --all-projects --dry-run",
           "");
  describe("example", "  tamrikon example Shop.vbp Till:5-6", "");
  describe("settings",
           "  tamrikon settings Shop.vbp\n"
           "  tamrikon settings All.vbg --all-projects templatePath=html.tmkt comPrivate=1",
           "");
  describe("templates", "  tamrikon templates", "");
}

}  // namespace

int runTamrikon(const std::vector<std::string>& words, const Streams& streams) {
  CLI::App app("Turns the comments of Visual Basic projects into documentation.", "tamrikon");
  app.set_version_flag("-V,--version", "tamrikon " TAMRIKON_VERSION);
  app.require_subcommand(1);
  CompileOptions compile;
  CommentOptions comment;
  ExampleOptions example;
  SettingsOptions settings;
  int templatesCodePage = 0;
  addCompile(app, compile);
  addComment(app, comment);
  addExample(app, example);
  addSettings(app, settings);
  addCodePage(*app.add_subcommand("templates", "List the templates with their descriptions"),
              templatesCodePage);
  // "--version" is to work behind a command as well.
  for (CLI::App* command : app.get_subcommands({})) command->fallthrough();
  app.add_subcommand("help", "Print the help of the program or of a command");
  addFooters(app);
  if (!words.empty() && words.front() == kCompleteWord) {
    printCompletions(app, {words.begin() + 1, words.end()}, streams.out);
    return kDone;
  }
  const std::vector<std::string> arguments = withoutHelpCommand(words);
  const std::string fault = faultOfNames(app, arguments);
  if (!fault.empty()) {
    streams.err << "tamrikon: " << fault << "\nRun with --help for more information.\n";
    return kWrongUsage;
  }
  try {
    app.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
  } catch (const CLI::ParseError& outcome) {
    return app.exit(outcome, streams.out, streams.err) == 0 ? kDone : kWrongUsage;
  }
  const auto run = [&] {
    if (app.got_subcommand("compile")) return compileCommand(compile, streams);
    if (app.got_subcommand("comment")) return commentCommand(comment, streams);
    if (app.got_subcommand("example")) return exampleCommand(example, streams);
    if (app.got_subcommand("settings")) return settingsCommand(settings, streams);
    return templatesCommand(templatesCodePage, streams);
  };
  try {
    const int status = run();
    if (streams.out.flush()) return status;
    streams.err << "tamrikon: cannot write the output\n";
  } catch (const std::length_error& tooMuch) {
    streams.err << "tamrikon: " << tooMuch.what() << '\n';
  } catch (const std::bad_alloc&) {
    streams.err << "tamrikon: there is not enough memory\n";
  }
  return kFailed;
}

}  // namespace tamrikon
