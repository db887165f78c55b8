// The overview map (Picture2(0)): one dot per square of the level and the dotted view frame.
#pragma once

#include <QImage>
#include <QWidget>

#include "core/picture.h"

namespace qb::ui {

class OverviewMap : public QWidget {
  Q_OBJECT
 public:
  explicit OverviewMap(QWidget* parent = nullptr);

  // Sizes the widget from the map's size in twips (scaled by `pixelsPerTwip`) and repaints it
  // when the map changed.
  void Sync(const MapPicture& map, double widthTwips, double heightTwips, double pixelsPerTwip);

 Q_SIGNALS:
  // A button was released on the map at (x, y), in level squares.
  void clicked(double x, double y);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  QImage dots_;
  int version_ = -1;
  int mapW_ = 0, mapH_ = 0;
  bool frameShown_ = false;
  QRect frame_;
};

}  // namespace qb::ui
