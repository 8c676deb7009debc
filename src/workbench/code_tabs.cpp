#include "workbench/code_tabs.h"

#include <QFontDatabase>
#include <QMap>
#include <QTabBar>

#include "base/paths.h"
#include "host/host_component.h"
#include "host/host_project.h"
#include "toolkit_qt/qt_text.h"

namespace tamrikon {

CodeTabs::CodeTabs(QWidget* parent)
    : QTabWidget(parent), codeFont_(QFontDatabase::systemFont(QFontDatabase::FixedFont)) {
  setObjectName("codeTabs");
  setAccessibleName("Code windows");
  setDocumentMode(true);
  setTabsClosable(true);
  setMovable(true);
  setElideMode(Qt::ElideNone);
  connect(this, &QTabWidget::currentChanged, this, &CodeTabs::frontChanged);
  connect(this, &QTabWidget::tabCloseRequested, this,
          [this](int index) { emit closeWanted(*static_cast<CodeWindow*>(widget(index))); });
}

void CodeTabs::add(CodeWindow& window) {
  window.editor().setCodeFont(codeFont_);
  connect(&window, &CodeWindow::stateChanged, this, [this] {
    showTitles();
    emit windowChanged();
  });
  emit added(window);
  addTab(&window, QString());
  showTitles();
}

void CodeTabs::closeWindow(CodeWindow& window) {
  window.disconnect(this);
  removeTab(indexOf(&window));
  window.retire();
  showTitles();
}

QVector<CodeWindow*> CodeTabs::windows() const {
  QVector<CodeWindow*> windows;
  for (int i = 0; i < count(); ++i) windows += static_cast<CodeWindow*>(widget(i));
  return windows;
}

CodeWindow* CodeTabs::current() const {
  return static_cast<CodeWindow*>(currentWidget());
}

void CodeTabs::bringToFront(CodeWindow& window) {
  setCurrentWidget(&window);
}

void CodeTabs::step(int by) {
  if (count() > 0) setCurrentIndex((currentIndex() + by + count()) % count());
}

void CodeTabs::setCodeFont(const QFont& font) {
  codeFont_ = font;
  for (CodeWindow* window : windows()) window->editor().setCodeFont(font);
}

void CodeTabs::showTitles() {
  QMap<QString, int> uses;
  for (const CodeWindow* window : windows()) ++uses[toQt(window->module().Name())];
  for (int i = 0; i < count(); ++i) {
    const auto& window = static_cast<const CodeWindow&>(*widget(i));
    const QString name = toQt(window.module().Name());
    // The project is named where it takes it to tell two windows apart.
    QString text =
        uses[name] > 1 ? toQt(window.module().component().project().Name()) + " - " + name : name;
    text.replace('&', "&&");
    if (window.module().isChanged()) text += '*';
    if (tabText(i) != text) setTabText(i, text);
    setTabToolTip(i, window.title() + '\n' + toQt(nativePath(window.module().path())));
  }
}

}  // namespace tamrikon
