// Arranges the widgets of a dialog as its layout says.
#pragma once

#include <QBoxLayout>
#include <QGridLayout>

#include "toolkit/layout.h"
#include "toolkit_qt/peer_factory.h"

namespace tamrikon {

class LayoutBuilder {
 public:
  LayoutBuilder(PeerFactory& factory, const QWidget& window);

  /// Makes the part the contents of `page`, an empty widget, at its top. Throws std::logic_error
  /// for a control of an unknown class.
  void fill(QWidget& page, const Layout& part);

 private:
  /// What a part of the layout has become: a widget, a layout, or nothing.
  struct Made {
    QWidget* widget = nullptr;
    QLayout* layout = nullptr;
  };

  Made make(const Layout& part, QWidget* parent);
  QWidget* makeControl(const Layout& part, QWidget* parent);
  QLayout* makeRow(const Layout& row, QWidget* parent);
  QLayout* makeLabelledRow(const Layout& row, QWidget* parent);
  QBoxLayout* makeColumn(const Layout& column, QWidget* parent);
  QLayout* makeTable(const Layout& table, QWidget* parent);
  QLayout* makeLabelled(const Layout& part, QWidget* parent);
  QWidget* makeFrame(const Layout& part, QWidget* parent);
  QWidget* makeTabs(const Layout& part, QWidget* parent);

  /// Between a label and the box below it.
  int labelSpacing() const { return (down_ + 1) / 2; }

  /// Labels in the row name the boxes that they stand before.
  void nameBoxes(const Layout& row);

  PeerFactory& factory_;
  int across_;  // spacing between what stands side by side
  int down_;
};

}  // namespace tamrikon
