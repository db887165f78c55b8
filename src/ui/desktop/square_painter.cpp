// Paints one square of the play view: its colour and, for a character, the face.
#include "ui/desktop/square_painter.h"

#include <QImage>
#include <QPen>
#include <QPointF>
#include <algorithm>
#include <cmath>
#include <map>
#include <tuple>

#include "ui/desktop/qt_colour.h"

namespace qb::ui {
namespace {

// A point of the square at fractions (fx, fy).
QPointF At(double side, double fx, double fy) {
  return QPointF(fx * side, fy * side);
}

// The white strokes of a face looking right, on a transparent square.
QImage DrawFace(int side, bool climbing) {
  QImage face(side, side, QImage::Format_ARGB32_Premultiplied);
  face.fill(Qt::transparent);
  QPainter painter(&face);
  const double eye = std::max(1.0, std::round(side * 0.12));
  // Two eyes ahead of the middle, at 0.5 and 0.8 of the square in the walking direction.
  for (double fx : {0.5, 0.8}) {
    const QPointF c = At(side, fx, 0.3);
    painter.fillRect(QRectF(std::round(c.x() - eye / 2), std::round(c.y()), eye, eye), Qt::white);
  }
  QPen pen(Qt::white);
  pen.setWidthF(side >= 24 ? 2.0 : 1.0);
  painter.setPen(pen);
  if (climbing) {
    // Holding on: a straight mouth and an arm reaching up the wall ahead.
    painter.drawLine(At(side, 0.5, 0.6), At(side, 0.8, 0.6));
    painter.drawLine(At(side, 0.95, 0.8), At(side, 0.95, 0.1));
  } else {
    // A smile: the lower half of an ellipse from 0.3 to 0.8 across, down to 0.8.
    painter.drawArc(QRectF(At(side, 0.3, 0.45), At(side, 0.8, 0.8)), 180 * 16, 180 * 16);
  }
  return face;
}

// Faces are drawn once per size, pose and direction; looking left is the exact mirror image.
const QImage& Face(int side, bool climbing, int dir) {
  static std::map<std::tuple<int, bool, int>, QImage> cache;
  const auto key = std::make_tuple(side, climbing, dir >= 0 ? 1 : -1);
  auto it = cache.find(key);
  if (it == cache.end()) {
    QImage face = DrawFace(side, climbing);
    if (dir < 0) face = face.mirrored(true, false);
    it = cache.emplace(key, std::move(face)).first;
  }
  return it->second;
}

}  // namespace

void PaintSquare(QPainter& painter, const QRect& rect, const ViewCell& cell) {
  painter.fillRect(rect, QColor::fromRgb(ToRgb(cell.colour)));
  if (!cell.face) return;
  painter.drawImage(rect.topLeft(), Face(rect.width(), cell.climbing, cell.dir));
}

}  // namespace qb::ui
