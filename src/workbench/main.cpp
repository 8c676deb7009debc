#include <QApplication>
#include <QCommandLineParser>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <cstring>
#include <string_view>

#include "platform/display.h"
#include "toolkit_qt/qt_text.h"
#include "workbench/workbench_window.h"

namespace {

/// Without a display Qt would end the program with a crash, unless another platform is asked for.
bool canShowWindows(int argc, char** argv) {
  const auto namesPlatform = [](const char* argument) {
    return std::strcmp(argument, "-platform") == 0 || std::strcmp(argument, "--platform") == 0;
  };
  return tamrikon::hasDisplay() || std::any_of(argv, argv + argc, namesPlatform);
}

/// Whether the command line asks for the help or the version alone, which need no window.
bool asksForText(int argc, char** argv) {
  return std::any_of(argv + 1, argv + argc, [](const std::string_view argument) {
    return argument == "-h" || argument == "--help" || argument == "--help-all" ||
           argument == "-v" || argument == "--version";
  });
}

}  // namespace

int main(int argc, char** argv) {
  if (asksForText(argc, argv)) {
    qputenv("QT_QPA_PLATFORM", "minimal");
  } else if (!canShowWindows(argc, argv)) {
    std::fputs(
        "tamrikon-workbench: there is no display to show windows on (neither DISPLAY nor "
        "WAYLAND_DISPLAY is set)\n",
        stderr);
    return 1;
  }
  const QApplication application(argc, argv);
  QCoreApplication::setOrganizationName("Tamrikon");
  QCoreApplication::setApplicationName("Tamrikon");
  QCoreApplication::setApplicationVersion(TAMRIKON_VERSION);

  QCommandLineParser parser;
  parser.setApplicationDescription("Edits and documents Visual Basic 6 projects.");
  parser.addHelpOption();
  parser.addVersionOption();
  parser.addPositionalArgument("project", "A project (.vbp) or project group (.vbg) to open.",
                               "[project]");
  const QCommandLineOption addIn("add-in",
                                 "Connects an add-in from outside, such as Tamrikon.Connect: it "
                                 "shows itself at once, and puts nothing into the menus.",
                                 "name");
  parser.addOption(addIn);
  parser.process(application);

  tamrikon::WorkbenchWindow window;
  window.show();
  const QStringList projects = parser.positionalArguments();
  if (!projects.isEmpty()) window.openProject(projects.first());
  // Within the event loop, as add-ins may show dialogs.
  QTimer started;
  started.setSingleShot(true);
  QObject::connect(&started, &QTimer::timeout, &window,
                   [&] { window.connectAddIns(tamrikon::fromQt(parser.value(addIn))); });
  started.start();
  return QApplication::exec();
}
