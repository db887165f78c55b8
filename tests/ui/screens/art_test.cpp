// The game's pictures: every source is embedded and renders, at the size and pixel ratio asked.
#include "ui/screens/art.h"

#include <QDir>
#include <QImage>
#include <QTest>

#include "ui/screens/screens.h"

using namespace qb::ui;

namespace {

// How many pixels of the image are not fully transparent.
int PaintedPixels(const QImage& image) {
  const QImage argb = image.convertToFormat(QImage::Format_ARGB32);
  int n = 0;
  for (int y = 0; y < argb.height(); ++y)
    for (int x = 0; x < argb.width(); ++x)
      if (qAlpha(argb.pixel(x, y)) > 0) ++n;
  return n;
}

}  // namespace

class ArtTest : public QObject {
  Q_OBJECT
 private slots:
  void everySourceIsEmbeddedAndPaints();
};

void ArtTest::everySourceIsEmbeddedAndPaints() {
  const QStringList sources =
      QDir(QStringLiteral(ART_SOURCE_DIR)).entryList({QStringLiteral("*.svg")}, QDir::Files);
  QVERIFY(!sources.isEmpty());
  QStringList names = ArtNames();
  for (const QString& file : sources) {
    const QString name = file.chopped(4);
    QVERIFY2(names.contains(name), qPrintable(name + " is not listed"));
  }
  for (const QString& name : names) {
    const QSize natural = ArtSize(name);
    QVERIFY2(!natural.isEmpty(), qPrintable(name + " is not embedded"));
    const QPixmap p = RenderArt(name, natural, 1.0);
    QVERIFY2(PaintedPixels(p.toImage()) > natural.width() * natural.height() / 10,
             qPrintable(name + " paints almost nothing"));
  }
}

QTEST_MAIN(ArtTest)
#include "art_test.moc"
