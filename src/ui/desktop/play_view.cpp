// The play view widget: shows Picture1, repainting only the squares the rules changed.
#include "ui/desktop/play_view.h"

#include <QPaintEvent>
#include <QPainter>
#include <cmath>

#include "ui/desktop/square_painter.h"

namespace qb::ui {

PlayView::PlayView(QWidget* parent) : QWidget(parent) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  setFocusPolicy(Qt::NoFocus);
  RebuildImage();
}

void PlayView::SetSquareSize(int logicalPixels) {
  const double dpr = devicePixelRatioF();
  const int minimum = static_cast<int>(std::ceil(12 * dpr));
  const int wanted = std::max(minimum, static_cast<int>(std::floor(logicalPixels * dpr)));
  if (wanted == square_ && !image_.isNull() && image_.devicePixelRatio() == dpr) return;
  square_ = wanted;
  RebuildImage();
  setFixedSize(sizeHint());
}

QSize PlayView::sizeHint() const {
  const double dpr = devicePixelRatioF();
  const int side = static_cast<int>(std::ceil(kViewSize * square_ / dpr));
  return {side, side};
}

void PlayView::RebuildImage() {
  image_ = QImage(kViewSize * square_, kViewSize * square_, QImage::Format_RGB32);
  image_.setDevicePixelRatio(devicePixelRatioF());
  image_.fill(Qt::white);
  needsAll_ = true;
}

QRect PlayView::DeviceRect(int vx, int vy) const {
  return {vx * square_, vy * square_, square_, square_};
}

QRect PlayView::LogicalRect(int vx, int vy) const {
  const double dpr = image_.devicePixelRatio();
  const int x0 = static_cast<int>(std::floor(vx * square_ / dpr));
  const int y0 = static_cast<int>(std::floor(vy * square_ / dpr));
  const int x1 = static_cast<int>(std::ceil((vx + 1) * square_ / dpr));
  const int y1 = static_cast<int>(std::ceil((vy + 1) * square_ / dpr));
  return {x0, y0, x1 - x0, y1 - y0};
}

void PlayView::Sync(ViewPicture& picture) {
  QPainter painter(&image_);
  painter.setRenderHint(QPainter::Antialiasing, false);
  // Device pixels: the image's own scale, so squares stay sharp on HiDPI screens.
  painter.resetTransform();
  painter.scale(1.0 / image_.devicePixelRatio(), 1.0 / image_.devicePixelRatio());
  const bool all = picture.TakeFullRepaint() || needsAll_;
  if (all) {
    picture.TakeDirty([](int, int) {});
    for (int vy = 0; vy < kViewSize; ++vy)
      for (int vx = 0; vx < kViewSize; ++vx)
        PaintSquare(painter, DeviceRect(vx, vy), picture.At(vx, vy));
    painted_ += kViewSize * kViewSize;
    needsAll_ = false;
    update();
    return;
  }
  QRegion changed;
  picture.TakeDirty([&](int vx, int vy) {
    PaintSquare(painter, DeviceRect(vx, vy), picture.At(vx, vy));
    changed += LogicalRect(vx, vy);
    ++painted_;
  });
  if (!changed.isEmpty()) update(changed);
}

void PlayView::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  for (const QRect& r : event->region()) {
    const double dpr = image_.devicePixelRatio();
    const QRectF source(r.x() * dpr, r.y() * dpr, r.width() * dpr, r.height() * dpr);
    painter.drawImage(QRectF(r), image_, source);
  }
}

}  // namespace qb::ui
