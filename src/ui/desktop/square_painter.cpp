// Paints one square of the play view: its colour and, for a character, the face.
#include "ui/desktop/square_painter.h"

#include <QPen>
#include <QPointF>
#include <algorithm>
#include <cmath>

#include "ui/desktop/qt_colour.h"

namespace qb::ui {
namespace {

// A point of the square at fractions (fx, fy), mirrored when the character looks left.
QPointF At(const QRect& r, double fx, double fy, int dir) {
  const double x = dir >= 0 ? fx : 1.0 - fx;
  return QPointF(r.left() + x * r.width(), r.top() + fy * r.height());
}

}  // namespace

void PaintSquare(QPainter& painter, const QRect& rect, const ViewCell& cell) {
  painter.fillRect(rect, QColor::fromRgb(ToRgb(cell.colour)));
  if (!cell.face) return;
  const int d = cell.dir;
  const double w = rect.width();
  const double eye = std::max(1.0, std::round(w * 0.12));
  // Two eyes ahead of the middle, at 0.5 and 0.8 of the square in the walking direction.
  for (double fx : {0.5, 0.8}) {
    const QPointF c = At(rect, fx, 0.3, d);
    painter.fillRect(QRectF(std::round(c.x() - eye / 2), std::round(c.y()), eye, eye), Qt::white);
  }
  QPen pen(Qt::white);
  pen.setWidthF(w >= 24 ? 2.0 : 1.0);
  painter.setPen(pen);
  painter.setBrush(Qt::NoBrush);
  if (cell.climbing) {
    // Holding on: a straight mouth and an arm reaching up the wall ahead.
    painter.drawLine(At(rect, 0.5, 0.6, d), At(rect, 0.8, 0.6, d));
    painter.drawLine(At(rect, 0.95, 0.8, d), At(rect, 0.95, 0.1, d));
    return;
  }
  // A smile: the lower half of an ellipse between 0.3 and 0.8 across, down to 0.8.
  const QPointF a = At(rect, 0.3, 0.45, d), b = At(rect, 0.8, 0.8, d);
  painter.drawArc(
      QRectF(QPointF(std::min(a.x(), b.x()), a.y()), QPointF(std::max(a.x(), b.x()), b.y())),
      180 * 16, 180 * 16);
}

}  // namespace qb::ui
