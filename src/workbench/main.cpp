#include <QApplication>
#include <QCommandLineParser>
#include <QTimer>

#include "workbench/program_name.h"
#include "workbench/renderer/qt_text.h"
#include "workbench/workbench_window.h"

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  QCoreApplication::setOrganizationName("Tamrikon");
  QCoreApplication::setApplicationName("Tamrikon");
  QCoreApplication::setApplicationVersion(TAMRIKON_VERSION);
  QGuiApplication::setApplicationDisplayName(tamrikon::kWorkbenchName);

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
