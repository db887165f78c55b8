// The game's pictures: SVG sources embedded as resources, rendered at the size asked.
#pragma once

#include <QPixmap>
#include <QString>
#include <QStringList>
#include <QWidget>

namespace qb::ui {

// Every picture's resource name, for instance "tool-climb" or "splash".
QStringList ArtNames();
// The resource name of tool 0..7, or an empty string for any other number.
QString ToolArtName(int tool);
// Renders a picture to `size` device-independent pixels at the screen's pixel ratio, or a
// null pixmap when there is no such picture.
QPixmap RenderArt(const QString& name, QSize size, qreal devicePixelRatio = 0);
// The natural size of a picture (its SVG view box), or an empty size.
QSize ArtSize(const QString& name);

// A widget that shows one picture, drawn from the vector source so that it stays sharp.
class ArtView : public QWidget {
  Q_OBJECT
 public:
  ArtView(const QString& name, QSize size, QWidget* parent = nullptr);
  QString Name() const { return name_; }
  QSize sizeHint() const override { return size_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QString name_;
  QSize size_;
};

}  // namespace qb::ui
