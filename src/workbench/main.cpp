#include <QApplication>
#include <QCommandLineParser>

#include "platform/data_folder.h"
#include "workbench/program_name.h"
#include "workbench/tamrikon_add_in.h"
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
  parser.process(application);

  tamrikon::WorkbenchWindow window;
  const tamrikon::TamrikonAddIn addIn(window, tamrikon::dataFolder());
  window.show();
  const QStringList projects = parser.positionalArguments();
  if (!projects.isEmpty()) window.openProject(projects.first());
  return QApplication::exec();
}
