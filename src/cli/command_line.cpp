#include "cli/command_line.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <new>
#include <stdexcept>

#include "cli/commands.h"
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
  command.add_option("--template", options.templateFile, "Template for this run")
      ->type_name("FILE");
  command.add_option("--output", options.outputFolder, "Output folder for this run")
      ->type_name("DIR");
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
}

/// What is wrong with the choice of a command; empty if nothing is.
std::string faultOfCommand(CLI::App& app, const std::vector<std::string>& arguments) {
  if (arguments.empty()) return "a COMMAND is needed";
  const std::string& first = arguments.front();
  const auto commands = app.get_subcommands({});
  const bool isKnown = first.starts_with('-') ||
                       std::any_of(commands.begin(), commands.end(), [&](const CLI::App* command) {
                         return command->get_name() == first;
                       });
  return isKnown ? std::string() : "there is no command '" + first + "'";
}

}  // namespace

int runTamrikon(const std::vector<std::string>& arguments, const Streams& streams) {
  CLI::App app("Turns the comments of Visual Basic projects into documentation.", "tamrikon");
  app.set_version_flag("--version", "tamrikon " TAMRIKON_VERSION);
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
  const std::string fault = faultOfCommand(app, arguments);
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
