// The margin of a code editor with the numbers of its lines.
#pragma once

#include <QWidget>

namespace tamrikon {

class CodeEditor;

class LineNumberArea final : public QWidget {
 public:
  explicit LineNumberArea(CodeEditor& editor);

  /// How wide it has to be for the number of the last line.
  int neededWidth() const;
  QSize sizeHint() const override { return {neededWidth(), 0}; }

 private:
  void paintEvent(QPaintEvent* event) override;

  /// A press selects the line.
  void mousePressEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

  CodeEditor& editor_;
};

}  // namespace tamrikon
