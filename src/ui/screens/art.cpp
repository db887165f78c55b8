// The game's pictures: SVG sources embedded as resources, rendered at the size asked.
#include "ui/screens/art.h"

#include <QGuiApplication>
#include <QIcon>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include "ui/screens/screens.h"

// The resources live in a static library: register them before the first use.
static void InitArtResources() {
  static const bool done = [] {
    Q_INIT_RESOURCE(art);
    return true;
  }();
  (void)done;
}

namespace qb::ui {

namespace {

QString ResourcePath(const QString& name) {
  return QStringLiteral(":/art/") + name + QStringLiteral(".svg");
}

qreal ScreenRatio() {
  return qGuiApp ? qGuiApp->devicePixelRatio() : 1.0;
}

}  // namespace

QStringList ArtNames() {
  QStringList names;
  for (int t = 0; t < 8; ++t) names << ToolArtName(t);
  names << QStringLiteral("splash") << QStringLiteral("about") << QStringLiteral("instructions")
        << QStringLiteral("won-game") << QStringLiteral("chooser") << QStringLiteral("app-icon");
  return names;
}

QString ToolArtName(int tool) {
  static const char* const kNames[8] = {"climb", "block", "build", "change",
                                        "jump",  "slow",  "bomb",  "laser"};
  if (tool < 0 || tool > 7) return {};
  return QStringLiteral("tool-") + QString::fromLatin1(kNames[tool]);
}

QPixmap RenderArt(const QString& name, QSize size, qreal devicePixelRatio) {
  InitArtResources();
  if (name.isEmpty() || size.isEmpty()) return {};
  QSvgRenderer renderer(ResourcePath(name));
  if (!renderer.isValid()) return {};
  const qreal ratio = devicePixelRatio > 0 ? devicePixelRatio : ScreenRatio();
  QImage image(size * ratio, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  {
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    renderer.render(&p);
  }
  image.setDevicePixelRatio(ratio);
  return QPixmap::fromImage(image);
}

QSize ArtSize(const QString& name) {
  InitArtResources();
  QSvgRenderer renderer(ResourcePath(name));
  if (!renderer.isValid()) return {};
  return renderer.viewBox().size();
}

ArtView::ArtView(const QString& name, QSize size, QWidget* parent)
    : QWidget(parent), name_(name), size_(size) {
  InitArtResources();
  setFixedSize(size);
}

void ArtView::paintEvent(QPaintEvent*) {
  QSvgRenderer renderer(ResourcePath(name_));
  if (!renderer.isValid()) return;
  QPainter p(this);
  p.setRenderHint(QPainter::Antialiasing);
  renderer.render(&p, rect());
}

QPixmap ToolIcon(int tool, int sizePx) {
  return RenderArt(ToolArtName(tool), QSize(sizePx, sizePx));
}

QIcon AppIcon() {
  QIcon icon;
  for (int px : {16, 24, 32, 48, 64, 128, 256})
    icon.addPixmap(RenderArt(QStringLiteral("app-icon"), QSize(px, px), 1.0));
  return icon;
}

}  // namespace qb::ui
