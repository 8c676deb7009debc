#include "toolkit_qt/qt_toolkit.h"

#include <QComboBox>
#include <QFileDialog>
#include <QMessageBox>

#include "support/temp_folder.h"
#include "toolkit_qt/file_filter.h"
#include "toolkit_qt/window_user.h"

namespace tamrikon {
namespace {

struct QtToolkitTest : testing::Test {
  QtToolkit toolkit;

  MessageAnswer answer(MessageButtons buttons, Qt::Key key) {
    test::whenShown([key](QWidget& box) { QTest::keyClick(&box, key); });
    return toolkit.messageBox({"Title", "Text", buttons});
  }
};

TEST_F(QtToolkitTest, EscapeAndEnterAnswerAMessageBox) {
  struct Case {
    MessageButtons buttons;
    MessageAnswer escape;
    MessageAnswer enter;
  };
  for (const Case& c :
       {Case{MessageButtons::ok, MessageAnswer::ok, MessageAnswer::ok},
        Case{MessageButtons::okCancel, MessageAnswer::cancel, MessageAnswer::ok},
        Case{MessageButtons::retryCancel, MessageAnswer::cancel, MessageAnswer::retry},
        Case{MessageButtons::yesNo, MessageAnswer::no, MessageAnswer::yes},
        Case{MessageButtons::yesNoCancel, MessageAnswer::cancel, MessageAnswer::yes}}) {
    EXPECT_EQ(answer(c.buttons, Qt::Key_Escape), c.escape) << static_cast<int>(c.buttons);
    EXPECT_EQ(answer(c.buttons, Qt::Key_Return), c.enter) << static_cast<int>(c.buttons);
  }
}

TEST_F(QtToolkitTest, MessageBoxShowsItsTextAsItIs) {
  test::whenShown([](QWidget& window) {
    auto& box = dynamic_cast<QMessageBox&>(window);
    EXPECT_EQ(box.windowTitle(), "Title");
    EXPECT_EQ(box.text(), "<b>a</b>\n& b");
    EXPECT_EQ(box.textFormat(), Qt::PlainText);
    EXPECT_EQ(box.icon(), QMessageBox::Information);
    box.close();
  });
  toolkit.messageBox({"Title", "<b>a</b>\r\n& b", MessageButtons::ok, MessageIcon::information});
}

TEST_F(QtToolkitTest, MessageBoxShowsItsWholeTitle) {
  for (const int length : {10, 60, 300}) {
    const std::string title = "Error reading /" + std::string(length, 'x') + " file";
    test::whenShown([&](QWidget& window) {
      auto& box = dynamic_cast<QMessageBox&>(window);
      const bool isWide = box.width() >= box.fontMetrics().horizontalAdvance(box.windowTitle());
      EXPECT_TRUE(isWide || box.text().remove(QChar(0x200B)).startsWith(box.windowTitle()))
          << length;
      box.close();
    });
    toolkit.messageBox({title, "Text"});
  }
}

TEST_F(QtToolkitTest, OpensDocumentsWithoutWaiting) {
  const test::TempFolder folder;
  const std::string opener =
      folder.put("bin/xdg-open", "#!/bin/sh\ncase $1 in *a) sleep 2;; esac; exit 3\n");
  std::filesystem::permissions(opener, std::filesystem::perms::owner_all);
  const QByteArray path = qgetenv("PATH");
  qputenv("PATH", QByteArray::fromStdString(folder / "bin:") + path);
  QElapsedTimer time;
  time.start();
  EXPECT_TRUE(toolkit.openDocument(folder.put("a", ""), {"a", "Cannot"}));
  EXPECT_TRUE(toolkit.openDocument(folder.put("b", ""), {"b", "Cannot"}));
  EXPECT_LT(time.elapsed(), 1000);
  QStringList shown;
  const auto note = [&](QWidget& box) {
    shown += box.windowTitle();
    box.close();
  };
  test::whenShown(note);
  EXPECT_FALSE(toolkit.openDocument(folder / "gone", {"gone", "Cannot"}));
  test::whenShown(note);
  EXPECT_TRUE(QTest::qWaitFor([&] { return shown == QStringList{"gone", "b"}; }));
  qputenv("PATH", path);
}

TEST_F(QtToolkitTest, FileToSaveGetsTheExtensionOfItsFilter) {
  const test::TempFolder folder;
  const FileChoice choice{"Save", "Text (*.txt)|*.txt|All files (*.*)|*.*", folder.path(), "name"};
  test::whenShown([](QWidget& window) { dynamic_cast<QDialog&>(window).accept(); });
  EXPECT_EQ(toolkit.chooseFileToSave(choice), folder / "name.txt");
  test::whenShown([](QWidget& window) {
    QTest::keyClick(window.findChild<QComboBox*>("fileTypeCombo"), Qt::Key_Down);
    dynamic_cast<QDialog&>(window).accept();
  });
  EXPECT_EQ(toolkit.chooseFileToSave(choice), folder / "name");
  test::whenShown([](QWidget& window) { window.close(); });
  EXPECT_EQ(toolkit.chooseFileToSave(choice), std::nullopt);
}

TEST_F(QtToolkitTest, FileToOpenIsLookedForWhereTheLastOneWas) {
  const test::TempFolder folder;
  folder.put("a.txt", "a");
  test::whenShown([](QWidget& window) { dynamic_cast<QDialog&>(window).accept(); });
  EXPECT_EQ(toolkit.chooseFileToOpen({"Open", "", folder.path(), "a.txt"}), folder / "a.txt");
  test::whenShown([&](QWidget& window) {
    EXPECT_EQ(dynamic_cast<QFileDialog&>(window).directory().path().toStdString(), folder.path());
    window.close();
  });
  EXPECT_EQ(toolkit.chooseFileToOpen({"Open", "", "", ""}), std::nullopt);
}

TEST_F(QtToolkitTest, FiltersAreThoseOfQt) {
  EXPECT_EQ(nameFilters("Text (*.txt)|*.txt|All files (*.*)|*.*"),
            QStringList({"Text (*.txt)", "All files (*)"}));
  EXPECT_EQ(nameFilters("Pages (new)|*.htm;*.html|"), QStringList{"Pages (new) (*.htm *.html)"});
  EXPECT_EQ(nameFilters(""), QStringList{});
  EXPECT_EQ(extensionOf("Text (*.txt)"), "txt");
  for (const char* filter :
       {"All files (*)", "Pages (*.htm *.html)", "Any (*.?)", "Tar (*.tar.gz)"}) {
    EXPECT_EQ(extensionOf(filter), "") << filter;
  }
}

}  // namespace
}  // namespace tamrikon
