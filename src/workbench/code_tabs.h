// The code windows, as tabs.
#pragma once

#include <QTabWidget>
#include <QVector>

#include "workbench/code_window.h"

namespace tamrikon {

class CodeTabs final : public QTabWidget {
  Q_OBJECT
 public:
  explicit CodeTabs(QWidget* parent = nullptr);

  /// Adds a new window behind those that are there. The first one is in front.
  void add(CodeWindow& window);

  /// Takes the window away.
  void closeWindow(CodeWindow& window);

  QVector<CodeWindow*> windows() const;

  /// The one in front, or null.
  CodeWindow* current() const;
  void bringToFront(CodeWindow& window);

  /// To the tab behind the current one, or with -1 to the one before; round at the ends.
  void step(int by);

  /// Of all windows.
  void setCodeFont(const QFont& font);

 signals:
  /// The user wants to close a window.
  void closeWanted(CodeWindow& window);

  /// A window is being added.
  void added(CodeWindow& window);

  /// Another window, or none, is in front.
  void frontChanged();

  /// The state of a window has changed, which its tab shows.
  void windowChanged();

 private:
  void showTitles();

  QFont codeFont_;
};

}  // namespace tamrikon
