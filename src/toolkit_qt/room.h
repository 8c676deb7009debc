// Measures of widgets in characters and lines of text.
#pragma once

#include <QAbstractScrollArea>
#include <QSize>
#include <QWidget>

namespace tamrikon {

/// In the widget's font.
int widthOf(const QWidget& widget, int characters);
int heightOf(const QWidget& widget, int lines);

/// The height of an item of a list.
int itemHeight(const QWidget& widget);

/// A scroll area with room for that much text, or items, which are `lineHeight` high.
QSize roomInside(const QAbstractScrollArea& area, int characters, int lines, int lineHeight);

/// The least room for a scroll area that would like to have `room`: a few lines of text.
QSize leastRoom(const QAbstractScrollArea& area, const QSize& room);

/// A widget with a size of text in place of the pixels that its class has as its default. Where the
/// screen is small it shrinks.
template <typename Base>
class Sized : public Base {
 public:
  using Base::Base;

  void setRoom(const QSize& room) {
    room_ = room;
    this->updateGeometry();
  }
  QSize sizeHint() const override { return room_; }
  QSize minimumSizeHint() const override { return leastRoom(*this, room_); }

 private:
  QSize room_;
};

}  // namespace tamrikon
