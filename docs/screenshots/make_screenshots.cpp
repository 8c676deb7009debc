// Draws the pictures of the workbench that the documentation shows, without a screen.
// usage: make_screenshots EXAMPLE_FOLDER OUTPUT_FOLDER
#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QPushButton>
#include <QTabWidget>
#include <QTimer>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <vector>

#include "platform/data_folder.h"
#include "workbench/renderer/qt_text.h"
#include "workbench/tamrikon_add_in.h"
#include "workbench/workbench_window.h"

namespace tamrikon {
namespace {

void settle() {
  for (int n = 0; n < 20; ++n) QApplication::processEvents(QEventLoop::AllEvents, 10);
}

/// Runs the next step as soon as its dialog stands, then the following one.
class Steps {
 public:
  using Ready = std::function<bool(QWidget&)>;
  using Step = std::function<void(QWidget&)>;

  void add(QString dialog, Ready ready, Step step) {
    steps_.push_back({std::move(dialog), std::move(ready), std::move(step)});
  }

  void start() {
    QObject::connect(&timer_, &QTimer::timeout, [this] { look(); });
    timer_.start(20);
  }

 private:
  struct Entry {
    QString dialog;
    Ready ready;
    Step step;
  };

  void look() {
    QWidget* const front = QApplication::activeModalWidget();
    if (front == nullptr || next_ == steps_.size()) return;
    const Entry& entry = steps_[next_];
    if (front->objectName() != entry.dialog || !entry.ready(*front)) return;
    ++next_;
    timer_.stop();
    entry.step(*front);
    timer_.start(20);
  }

  QTimer timer_;
  std::vector<Entry> steps_;
  std::size_t next_ = 0;
};

class Camera {
 public:
  explicit Camera(QString folder) : folder_(std::move(folder)) {}

  void take(QWidget& widget, const QString& name) const {
    settle();
    const QString file = folder_ + '/' + name + ".png";
    if (!widget.grab().save(file)) std::fprintf(stderr, "cannot write %s\n", qPrintable(file));
  }

 private:
  QString folder_;
};

void press(QWidget& dialog, const char* button) {
  dialog.findChild<QPushButton*>(button)->click();
}

bool isThere(QWidget&) {
  return true;
}

void photograph(const std::string& example, const QString& output) {
  // Its name is seen in the pictures.
  const std::filesystem::path folder = std::filesystem::temp_directory_path() / "Tamrikon";
  const std::filesystem::path project = folder / "Inventory";
  std::filesystem::remove_all(folder);
  std::filesystem::create_directories(folder);
  const auto copyAll = std::filesystem::copy_options::recursive;
  std::filesystem::copy(example, project, copyAll);
  std::filesystem::copy(dataFolder() + "/Templates", folder / "Templates", copyAll);
  std::filesystem::create_directory(project / "Documentation");

  const Camera camera(output);
  WorkbenchOptions options;
  options.settingsFile = toQt((folder / "settings.ini").string());
  WorkbenchWindow window(options);
  TamrikonAddIn addIn(window, folder.string());
  addIn.session().runsPrograms = false;
  window.show();
  window.openProject(toQt((project / "Inventory.vbg").string()));
  for (const char* name : {"StockItem", "Warehouse"}) {
    for (HostModule* module : modulesOf(*window.ide())) {
      if (module->Name() == name) window.showCode(*module).editor().setSelection({26, 1, 26, 1});
    }
  }
  camera.take(window, "workbench");

  // The default template may not be there; the example is shown with the one of web pages.
  ProjectSettings& settings = addIn.session().settings;
  settings.templatePath = settings.templateFolder + "/html.tmkt";
  settings.outputPath = (project / "Documentation").string();

  Steps steps;
  steps.add("frmAddIn", isThere, [&](QWidget& dialog) {
    auto* tabs = dialog.findChild<QTabWidget*>("tbsOptions");
    for (const char* name : {"compile", "comment", "output", "miscellaneous"}) {
      camera.take(dialog, QString("options-") + name);
      tabs->setCurrentIndex((tabs->currentIndex() + 1) % tabs->count());
    }
    QTimer::singleShot(0, &dialog, [&dialog] { press(dialog, "Command1"); });
  });
  steps.add(
      "ProgressDlg",
      [](QWidget& dialog) { return dialog.findChild<QPushButton*>("OKButton")->isEnabled(); },
      [&](QWidget& dialog) {
        camera.take(dialog, "compile");
        QTimer::singleShot(0, &dialog, [&dialog] { press(dialog, "OKButton"); });
      });
  steps.start();
  addIn.showOptions();
  std::filesystem::remove_all(folder);
}

}  // namespace
}  // namespace tamrikon

int main(int argc, char** argv) {
  if (argc != 3) {
    std::fprintf(stderr, "usage: make_screenshots EXAMPLE_FOLDER OUTPUT_FOLDER\n");
    return 2;
  }
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  tamrikon::photograph(argv[1], QString::fromLocal8Bit(argv[2]));
}
