// The bar below the code in which texts are looked for and replaced.
#pragma once

#include <QPointer>
#include <QWidget>

#include "workbench/code_window.h"
#include "workbench/text_search.h"

class QCheckBox;
class QLabel;
class QLineEdit;
class QToolButton;

namespace tamrikon {

class FindBar final : public QWidget {
  Q_OBJECT
 public:
  explicit FindBar(QWidget* parent = nullptr);

  /// Where it looks: the window in front, or null.
  void setWindow(CodeWindow* window);

  /// Shows the bar, with what is selected in the code as the text to find.
  void openFor(bool replacing);

  /// Back to the code.
  void closeBar();

  /// Selects the next match behind the selection, or the one before it; round at the ends of the
  /// module.
  void findNext();
  void findPrevious();

  TextSearch search() const;

 signals:
  /// The text is to be looked for in all modules of the project.
  void projectSearchWanted(const TextSearch& search);

 private:
  enum class Direction { forward, backward };

  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void find(Direction direction, int from);
  void findWhileTyping();
  void replaceOne();
  void replaceAll();
  void showStatus(const QString& text, bool isFailure = false);
  void takeSelection();
  void showState();

  QPointer<CodeWindow> window_;
  QLineEdit* findText_;
  QLineEdit* replaceText_;
  QCheckBox* matchCase_;
  QCheckBox* wholeWord_;
  QLabel* status_;
  QWidget* replaceRow_;
  QList<QWidget*> needText_;  // buttons that do nothing without a text to find
};

}  // namespace tamrikon
