// The overview map (Picture2(0)): one dot per square of the level and the dotted view frame.
#include "ui/desktop/overview_map.h"

#include <QMouseEvent>
#include <QPainter>
#include <cmath>

#include "ui/desktop/qt_colour.h"

namespace qb::ui {

OverviewMap::OverviewMap(QWidget* parent) : QWidget(parent) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  setFocusPolicy(Qt::NoFocus);
}

void OverviewMap::Sync(const MapPicture& map, double widthTwips, double heightTwips,
                       double pixelsPerTwip) {
  const QSize size(std::max(1, static_cast<int>(std::lround(widthTwips * pixelsPerTwip))),
                   std::max(1, static_cast<int>(std::lround(heightTwips * pixelsPerTwip))));
  if (size != this->size()) setFixedSize(size);
  if (map.version == version_ && map.Width() == mapW_ && map.Height() == mapH_) return;
  version_ = map.version;
  mapW_ = map.Width();
  mapH_ = map.Height();
  dots_ = QImage(std::max(mapW_, 1), std::max(mapH_, 1), QImage::Format_RGB32);
  dots_.fill(Qt::white);
  for (int y = 0; y < mapH_; ++y) {
    auto* line = reinterpret_cast<QRgb*>(dots_.scanLine(y));
    for (int x = 0; x < mapW_; ++x) line[x] = ToRgb(map.Dot(x, y));
  }
  frameShown_ = map.frameShown;
  frame_ = QRect(map.frameX, map.frameY, map.frameW, map.frameH);
  update();
}

void OverviewMap::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  // Each dot is a block of pixels: no smoothing between squares.
  painter.setRenderHint(QPainter::SmoothPixmapTransform, false);
  painter.drawImage(rect(), dots_);
  if (!frameShown_ || mapW_ <= 0 || mapH_ <= 0) return;
  const double sx = static_cast<double>(width()) / mapW_;
  const double sy = static_cast<double>(height()) / mapH_;
  QPen pen(Qt::black);
  pen.setStyle(Qt::DotLine);
  painter.setPen(pen);
  painter.drawRect(
      QRectF(frame_.x() * sx, frame_.y() * sy, frame_.width() * sx - 1, frame_.height() * sy - 1));
}

void OverviewMap::mouseReleaseEvent(QMouseEvent* event) {
  if (mapW_ <= 0 || mapH_ <= 0) return;
  const QPointF p = event->position();
  Q_EMIT clicked(p.x() * mapW_ / width(), p.y() * mapH_ / height());
}

}  // namespace qb::ui
