#include <vector>

#include "workbench_fixture.h"

namespace tamrikon::test {
namespace {

class IdeSurfaceTest : public WorkbenchTest {
 protected:
  void SetUp() override {
    WorkbenchTest::SetUp();
    open();
  }
  VBE& vbe() const { return window_->vbe(); }
};

TEST_F(IdeSurfaceTest, ItemsOfAddInsAreRealOnes) {
  const struct {
    const char* bar;
    const char* widget;
    int number;
  } bars[] = {{"Menu Bar", "menuBar", 1},
              {"Standard", "standardToolBar", 2},
              {"Add-Ins", "addInsMenu", 3},
              {"Code Window", "codeWindowMenu", 4}};
  for (const auto& entry : bars) {
    CommandBar* bar = vbe().CommandBars().Item(entry.bar);
    ASSERT_NE(bar, nullptr) << entry.bar;
    EXPECT_EQ(vbe().CommandBars().Item(entry.number), bar);
    auto* widget = window_->findChild<QWidget*>(entry.widget);
    CommandBarControls& controls = bar->Controls();
    const int before = controls.Count();
    CommandBarControl& last = controls.Add(ControlType::button);
    CommandBarControl& first = controls.Add(ControlType::button, 1);
    first.setCaption("&First");
    first.setToolTipText("What it does");
    first.PasteFace({2, 1, {0xFFFF0000, 0x00000000}});
    EXPECT_EQ(controls.Count(), before + 2);
    EXPECT_EQ(&controls.Item(1), &first);
    EXPECT_EQ(&controls.Item(before + 2), &last);
    QAction* action = widget->actions().front();
    EXPECT_EQ(action->text(), "&First");
    EXPECT_EQ(action->toolTip(), "What it does");
    const QImage face = action->icon().pixmap(QSize(8, 4)).toImage();
    EXPECT_EQ(face.size(), QSize(8, 4));
    EXPECT_EQ(face.pixelColor(3, 3), QColor(Qt::red));
    EXPECT_EQ(face.pixelColor(4, 0).alpha(), 0);

    int clicks = 0;
    auto events = vbe().Events().CommandBarEvents(&first);
    events->Click = [&] {
      ++clicks;
      first.Delete();  // as a last wish
      events.reset();
    };
    action->trigger();
    EXPECT_EQ(clicks, 1);
    last.Delete();
    EXPECT_EQ(controls.Count(), before);
    EXPECT_THROW(first.setCaption("x"), IdeError);
    EXPECT_NE(vbe().Events().CommandBarEvents(&first), nullptr);
  }
  EXPECT_EQ(vbe().CommandBars().Item("standard"), nullptr);
  EXPECT_EQ(vbe().CommandBars().Item(5), nullptr);
  EXPECT_THROW(vbe().Events().CommandBarEvents(nullptr), IdeError);
  EXPECT_THROW(vbe().CommandBars().Item(3)->Controls().Add(ControlType::button, 9), IdeError);
}

TEST_F(IdeSurfaceTest, PanesAreTheCodeWindows) {
  EXPECT_EQ(vbe().ActiveCodePane(), nullptr);
  EXPECT_EQ(vbe().ActiveWindow(), nullptr);
  EXPECT_EQ(vbe().MainWindow().HWnd(), window_->winId());
  CodePane& text = module("StockText").CodePane();
  CodePane& warehouse = module("Warehouse").CodePane();
  EXPECT_EQ(vbe().Windows().Count(), 2);
  EXPECT_EQ(vbe().ActiveCodePane(), &text);
  vbe().setActiveCodePane(warehouse);
  EXPECT_EQ(vbe().ActiveCodePane(), &warehouse);
  EXPECT_EQ(vbe().ActiveWindow(), &warehouse.Window());
  EXPECT_EQ(&vbe().Windows().Item(2), &warehouse.Window());
  EXPECT_EQ(&warehouse.CodeModule(), &module("Warehouse"));

  module("Warehouse").InsertLines(1, "' \u00C4\U0001F600x");
  warehouse.SetSelection({1, 3, 1, 5});
  const CodeEditor& editor = tabs().current()->editor();
  EXPECT_EQ(fromQt(editor.textCursor().selectedText()), "\u00C4\U0001F600");
  EXPECT_EQ(warehouse.GetSelection().endColumn, 5);
  warehouse.setTopLine(12);
  EXPECT_EQ(editor.topLine(), 12);

  // No question is asked: the module keeps the edit, and the pane what it showed.
  warehouse.Window().Close();
  EXPECT_EQ(vbe().Windows().Count(), 1);
  EXPECT_EQ(vbe().ActiveCodePane(), &text);
  EXPECT_EQ(&module("Warehouse").CodePane(), &warehouse);
  warehouse.Window().SetFocus();
  EXPECT_EQ(warehouse.GetSelection().startColumn, 3);
  EXPECT_EQ(tabs().current()->editor().topLine(), 12);
  EXPECT_TRUE(module("Warehouse").isChanged());

  CodePane& gauge = module("StockGauge").CodePane();
  gauge.SetSelection({50, 1, 50, 1});
  gauge.setTopLine(40);  // while nobody has seen it yet
  vbe().setActiveCodePane(gauge);
  QApplication::processEvents();
  EXPECT_EQ(tabs().current()->editor().topLine(), 40);
  EXPECT_EQ(vbe().ActiveVBProject().Name(), "Desk");
}

TEST_F(IdeSurfaceTest, EventsTellOfProjects) {
  std::vector<std::string> told;
  auto events = vbe().Events().VBProjectsEvents();
  events->ItemAdded = [&](VBProject& project) { told.push_back("added " + project.Name()); };
  events->ItemActivated = [&](VBProject& project) { told.push_back("active " + project.Name()); };
  auto dropped = vbe().Events().VBProjectsEvents();
  dropped->ItemActivated = [&](VBProject&) { dropped.reset(); };
  events->ItemRemoved = [&told, &ide = vbe()](VBProject& project) {
    told.push_back("removed " + project.Name() + " of " + ide.ActiveVBProject().Name());
  };
  show("Warehouse");
  show("frmDesk");
  tabs().setCurrentIndex(0);
  emit window_->findChild<ProjectExplorer*>()->activationWanted(
      window_->ide()->VBProjects().Item(2));
  open("Stock.vbp");
  EXPECT_EQ(told, (std::vector<std::string>{"active Stock", "active Desk", "active Stock",
                                            "active Desk", "removed Stock of Desk",
                                            "removed Desk of Desk", "added Stock"}));
  EXPECT_EQ(dropped, nullptr);
  window_.reset();
  events.reset();  // a source may outlive the window
}

TEST_F(IdeSurfaceTest, ColoursThatChangeAreToldToTheWindowProcedure) {
  AddInHost& host = window_->addInHost();
  const std::uintptr_t window = vbe().MainWindow().HWnd();
  std::vector<std::uint32_t> messages;
  const WindowProcedure own = host.setWindowProcedure(window, [&](std::uint32_t message) {
    messages.push_back(message);
    EXPECT_EQ(host.buttonFaceColour(), 0x102030U);
  });
  ASSERT_TRUE(own);
  QPalette palette = window_->palette();
  palette.setColor(QPalette::Button, QColor(0x10, 0x20, 0x30));
  window_->setPalette(palette);
  EXPECT_EQ(messages, std::vector<std::uint32_t>{0x15});
  host.setWindowProcedure(window, own);
  window_->setPalette({});
  EXPECT_EQ(messages.size(), 1U);
  EXPECT_THROW(host.setWindowProcedure(0, own), IdeError);
  EXPECT_THROW(host.setWindowProcedure(window + 1, own), IdeError);
}

TEST_F(IdeSurfaceTest, ItemsOfTheProgramAreControlsToo) {
  CommandBarControls& standard = vbe().CommandBars().Item("Standard")->Controls();
  EXPECT_EQ(standard.Item(1).ToolTipText(), "Open Project (Ctrl+O)");
  EXPECT_EQ(standard.Item(4).Caption(), "Cu&t");  // separators aren't counted
  const int count = standard.Count();
  standard.Item(2).Delete();
  EXPECT_EQ(standard.Count(), count - 1);
  QTest::keyClicks(&show("Warehouse"), "' ");
  trigger("save");  // the command goes on living in the menu
  EXPECT_FALSE(module("Warehouse").isChanged());
  EXPECT_THROW(standard.Item(0), IdeError);
  EXPECT_THROW(standard.Item(count), IdeError);
  EXPECT_EQ(vbe().CommandBars().Item(1)->Controls().Item(1).Caption(), "&File");
}

TEST_F(IdeSurfaceTest, SelectionsOutsideTheTextAreMovedIntoIt) {
  CodePane& pane = module("StockErrors").CodePane();
  const int last = module("StockErrors").CountOfLines();
  pane.SetSelection({0, -3, last + 5, 900});
  const Selection selected = pane.GetSelection();
  EXPECT_EQ(selected.startLine, 1);
  EXPECT_EQ(selected.startColumn, 1);
  EXPECT_EQ(selected.endLine, last);
  pane.setTopLine(last + 100);
  EXPECT_LE(tabs().current()->editor().topLine(), last);
  EXPECT_THROW(vbe().Windows().Item(2), IdeError);
  vbe().ActiveWindow()->Close();
  EXPECT_EQ(vbe().ActiveWindow(), nullptr);
  vbe().MainWindow().Close();
  EXPECT_EQ(window_->ide(), nullptr);
  EXPECT_FALSE(window_->isVisible());
}

}  // namespace
}  // namespace tamrikon::test
