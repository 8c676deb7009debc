#include "workbench/workbench_icons.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>

namespace tamrikon {
namespace {

// All paths are drawn in a square of 16 by 16, with lines on half units.

void polyline(QPainterPath& path, std::initializer_list<QPointF> points) {
  path.moveTo(*points.begin());
  for (const QPointF& point : points) path.lineTo(point);
}

void page(QPainterPath& path, double x, double y, double width, double height) {
  const double fold = 3;
  polyline(path, {{x, y},
                  {x + width - fold, y},
                  {x + width, y + fold},
                  {x + width, y + height},
                  {x, y + height},
                  {x, y}});
  polyline(path, {{x + width - fold, y}, {x + width - fold, y + fold}, {x + width, y + fold}});
}

void folder(QPainterPath& path) {
  polyline(path, {{1.5, 13.5}, {1.5, 3}, {6, 3}, {7.5, 5}, {14.5, 5}, {14.5, 13.5}, {1.5, 13.5}});
}

void disk(QPainterPath& path, double x, double y, double size) {
  polyline(
      path,
      {{x, y}, {x + size - 2, y}, {x + size, y + 2}, {x + size, y + size}, {x, y + size}, {x, y}});
  polyline(path, {{x + 2.5, y + size},
                  {x + 2.5, y + size - 4},
                  {x + size - 2.5, y + size - 4},
                  {x + size - 2.5, y + size}});
  polyline(path, {{x + 2.5, y}, {x + 2.5, y + 2.5}, {x + size - 4, y + 2.5}, {x + size - 4, y}});
}

void turn(QPainterPath& path) {  // an arrow that leads back
  polyline(path, {{6, 3}, {2.5, 6.5}, {6, 10}});
  path.moveTo(2.5, 6.5);
  path.lineTo(9.5, 6.5);
  path.arcTo(QRectF(6.5, 6.5, 6.5, 6.5), 90, -180);
  path.lineTo(6.5, 13);
}

QPainterPath pathOf(WorkbenchIcon which) {
  QPainterPath path;
  switch (which) {
    case WorkbenchIcon::open:
      polyline(path, {{1.5, 13.5}, {1.5, 3}, {6, 3}, {7.5, 5}, {13, 5}, {13, 7.5}});
      polyline(path, {{1.5, 13.5}, {4, 7.5}, {15, 7.5}, {12.5, 13.5}, {1.5, 13.5}});
      break;
    case WorkbenchIcon::save: disk(path, 2.5, 2.5, 11); break;
    case WorkbenchIcon::saveAll:
      disk(path, 1.5, 4.5, 10);
      polyline(path, {{4.5, 4}, {4.5, 1.5}, {12.5, 1.5}, {14.5, 3.5}, {14.5, 11.5}, {12, 11.5}});
      break;
    case WorkbenchIcon::cut:
      polyline(path, {{4.5, 1.5}, {10, 10.5}});
      polyline(path, {{11.5, 1.5}, {6, 10.5}});
      path.addEllipse(QPointF(4.5, 12.5), 2, 2);
      path.addEllipse(QPointF(11.5, 12.5), 2, 2);
      break;
    case WorkbenchIcon::copy:
      page(path, 5.5, 4.5, 8, 10);
      polyline(path, {{5, 11.5}, {2.5, 11.5}, {2.5, 1.5}, {9, 1.5}});
      break;
    case WorkbenchIcon::paste:
      polyline(path, {{5, 3.5}, {2.5, 3.5}, {2.5, 14.5}, {6, 14.5}});
      polyline(path, {{10, 3.5}, {12.5, 3.5}, {12.5, 6}});
      path.addRect(5, 1.5, 5, 3.5);
      path.addRect(7.5, 7.5, 6, 7);
      break;
    case WorkbenchIcon::undo:
    case WorkbenchIcon::redo: turn(path); break;
    case WorkbenchIcon::find:
      path.addEllipse(QPointF(7, 7), 4.5, 4.5);
      polyline(path, {{10.5, 10.5}, {14.5, 14.5}});
      break;
    case WorkbenchIcon::explorer:
      path.addRect(1.5, 1.5, 5, 3);
      path.addRect(8.5, 6.5, 6, 3);
      path.addRect(8.5, 11.5, 6, 3);
      polyline(path, {{4, 5}, {4, 13}, {8.5, 13}});
      polyline(path, {{4, 8}, {8.5, 8}});
      break;
    case WorkbenchIcon::project:
      path.addRect(1.5, 3.5, 13, 10);
      polyline(path, {{1.5, 6}, {14.5, 6}});
      break;
    case WorkbenchIcon::folder: folder(path); break;
    case WorkbenchIcon::document:
      page(path, 3.5, 1.5, 9, 13);
      polyline(path, {{5.5, 7.5}, {10.5, 7.5}});
      polyline(path, {{5.5, 9.5}, {10.5, 9.5}});
      polyline(path, {{5.5, 11.5}, {9, 11.5}});
      break;
    case WorkbenchIcon::warning:
      polyline(path, {{8, 2}, {15, 14}, {1, 14}, {8, 2}});
      polyline(path, {{8, 6}, {8, 10}});
      polyline(path, {{8, 11.6}, {8, 12}});
      break;
  }
  return path;
}

class LineIcon final : public QIconEngine {
 public:
  explicit LineIcon(WorkbenchIcon which) : which_(which) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
    const QPalette palette = QGuiApplication::palette();
    const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
    const auto role = mode == QIcon::Selected ? QPalette::HighlightedText : QPalette::WindowText;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->translate(rect.topLeft());
    painter->scale(rect.width() / 16.0, rect.height() / 16.0);
    if (which_ == WorkbenchIcon::redo) {
      painter->translate(16, 0);
      painter->scale(-1, 1);
    }
    painter->setPen(
        QPen(palette.color(group, role), 1.1, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter->drawPath(pathOf(which_));
    painter->restore();
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paint(&painter, pixmap.rect(), mode, state);
    return pixmap;
  }

  QIconEngine* clone() const override { return new LineIcon(*this); }

 private:
  WorkbenchIcon which_;
};

}  // namespace

QIcon workbenchIcon(WorkbenchIcon which) {
  return QIcon(new LineIcon(which));
}

}  // namespace tamrikon
