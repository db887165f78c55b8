// The play view widget: shows Picture1, repainting only the squares the rules changed.
#pragma once

#include <QImage>
#include <QWidget>

#include "core/picture.h"

namespace qb::ui {

class PlayView : public QWidget {
  Q_OBJECT
 public:
  explicit PlayView(QWidget* parent = nullptr);

  // Chooses the square size from a logical size; a square is never under 12 pixels and always
  // covers a whole number of device pixels.
  void SetSquareSize(int logicalPixels);
  int SquareDevicePixels() const { return square_; }
  QSize sizeHint() const override;

  // Copies the changed squares of `picture` into the backing image and schedules their repaint.
  void Sync(ViewPicture& picture);

  // How many squares were painted into the backing image so far (for measurements).
  long SquaresPainted() const { return painted_; }
  const QImage& Backing() const { return image_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QRect DeviceRect(int vx, int vy) const;
  QRect LogicalRect(int vx, int vy) const;
  void RebuildImage();

  int square_ = 12;
  QImage image_;
  bool needsAll_ = true;
  long painted_ = 0;
};

}  // namespace qb::ui
