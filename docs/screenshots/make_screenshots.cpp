// Draws the pictures of the workbench that the documentation shows, without a screen.
// usage: make_screenshots EXAMPLE_FOLDER OUTPUT_FOLDER
#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QTabWidget>
#include <QTimer>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <functional>
#include <vector>

#include "platform/data_folder.h"
#include "toolkit_qt/qt_text.h"
#include "workbench/modal_steps.h"
#include "workbench/workbench_window.h"

namespace tamrikon {
namespace {

void settle() {
  for (int n = 0; n < 20; ++n) QApplication::processEvents(QEventLoop::AllEvents, 10);
}

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

/// A copy of the example in a folder whose name is seen in the pictures.
class Example {
 public:
  explicit Example(const std::string& source) {
    const auto copyAll = std::filesystem::copy_options::recursive;
    std::filesystem::remove_all(folder_);
    std::filesystem::create_directories(folder_);
    std::filesystem::copy(source, project_, copyAll);
    std::filesystem::copy(dataFolder() + "/Templates", folder_ / "Templates", copyAll);
    std::filesystem::create_directory(project_ / "Documentation");
    // The example is shown with the template of web pages.
    for (const char* name : {"Stock.tamrik", "Desk.tamrik"}) {
      std::ofstream(project_ / name, std::ios::app)
          << "\r\ntemplateFolder = " << (folder_ / "Templates").string()
          << "\r\ntemplatePath = html.tmkt\r\noutputPath = "
          << (project_ / "Documentation").string();
    }
    qputenv("TAMRIKON_HOME", folder_.c_str());
    qputenv("XDG_CONFIG_HOME", (folder_ / "config").c_str());
    qputenv("XDG_STATE_HOME", (folder_ / "state").c_str());
  }
  ~Example() { std::filesystem::remove_all(folder_); }
  Example(const Example&) = delete;
  Example& operator=(const Example&) = delete;

  const std::filesystem::path& folder() const { return folder_; }
  const std::filesystem::path& project() const { return project_; }

 private:
  std::filesystem::path folder_ = std::filesystem::temp_directory_path() / "Tamrikon";
  std::filesystem::path project_ = folder_ / "Inventory";
};

class Photographer {
 public:
  Photographer(const Example& example, const QString& output)
      : camera_(output), window_(optionsFor(example)) {
    window_.show();
    window_.openProject(toQt((example.project() / "Inventory.vbg").string()));
    window_.connectAddIns();
  }

  void takeWindow() {
    showCode("StockItem", 1);
    showCode("Warehouse", 26);
    camera_.take(window_, "workbench");
  }

  void takeOptions() {
    test::ModalSteps steps;
    steps.add("frmAddIn", [&](QWidget& dialog) {
      takeTabs(dialog, "options-", {"compile", "comment", "output", "miscellaneous"});
      test::pressLater(dialog, "Command1");
    });
    steps.add("ProgressDlg", [&](QWidget& dialog) {
      camera_.take(dialog, "compile");
      test::pressLater(dialog, "OKButton");
    });
    choose("Add-Ins", "Tamrikon", steps);
  }

  void takeManager() {
    test::ModalSteps steps;
    addPicture(steps, "AddInManager", "add-in-manager", "cmdCancel");
    choose("Add-Ins", "&Add-In Manager…", steps);
  }

  void takeEditor() {
    showCode("Warehouse", 108);
    test::ModalSteps steps;
    steps.add("EditComment", [&](QWidget& dialog) {
      takeTabs(dialog, "editor-",
               {"basic", "parameters", "references", "misc", "user-defined", "source"});
      pressOnTab(dialog, 2, "SelectSeeBtn");
    });
    addPicture(steps, "ReferenceSelectDlg", "picker", "cmdCancel");
    steps.add("EditComment", [&](QWidget& dialog) { pressOnTab(dialog, 2, "findInterestBtn"); });
    addPicture(steps, "InterestLinks", "proposals", "CancelButton");
    steps.add("EditComment", [&](QWidget& dialog) { pressOnTab(dialog, 5, "Command1"); });
    addPicture(steps, "EditCommentOptions", "editor-options", "CancelButton");
    steps.add("EditComment", [&](QWidget& dialog) { test::pressLater(dialog, "cmdCancel"); });
    choose("Code Window", "Comment Editor", steps);
  }

 private:
  static WorkbenchOptions optionsFor(const Example& example) {
    WorkbenchOptions options;
    options.settingsFile = toQt((example.folder() / "settings.ini").string());
    return options;
  }

  void showCode(const char* name, int line) {
    for (HostModule* module : modulesOf(*window_.ide())) {
      if (module->Name() == name) {
        window_.showCode(*module).editor().setSelection({line, 1, line, 1});
      }
    }
  }

  void choose(const char* bar, const char* caption, test::ModalSteps& steps) {
    CommandBarControls& items = window_.screen().commandBars().Item(bar)->Controls();
    for (int number = 1; number <= items.Count(); ++number) {
      auto& item = dynamic_cast<QtControl&>(items.Item(number));
      if (item.Caption() != caption) continue;
      steps.start();
      return item.action()->trigger();
    }
    std::fprintf(stderr, "no item %s\n", caption);
  }

  void takeTabs(QWidget& dialog, const QString& prefix, const std::vector<const char*>& names) {
    auto* tabs = dialog.findChild<QTabWidget*>("tbsOptions");
    for (const char* name : names) {
      camera_.take(dialog, prefix + name);
      tabs->setCurrentIndex((tabs->currentIndex() + 1) % tabs->count());
    }
  }

  static void pressOnTab(QWidget& dialog, int tab, const char* button) {
    dialog.findChild<QTabWidget*>("tbsOptions")->setCurrentIndex(tab);
    test::pressLater(dialog, button);
  }

  void addPicture(test::ModalSteps& steps, const char* dialog, const char* name,
                  const char* button) {
    steps.add(dialog, [this, name, button](QWidget& shown) {
      camera_.take(shown, name);
      test::pressLater(shown, button);
    });
  }

  Camera camera_;
  WorkbenchWindow window_;
};

}  // namespace
}  // namespace tamrikon

int main(int argc, char** argv) {
  if (argc != 3) {
    std::fprintf(stderr, "usage: make_screenshots EXAMPLE_FOLDER OUTPUT_FOLDER\n");
    return 2;
  }
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  const tamrikon::Example example(argv[1]);
  tamrikon::Photographer photographer(example, QString::fromLocal8Bit(argv[2]));
  photographer.takeWindow();
  photographer.takeOptions();
  photographer.takeEditor();
  photographer.takeManager();
}
