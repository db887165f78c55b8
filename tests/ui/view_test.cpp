// Painting the model: squares, faces, colours, and repainting only what changed.
#include <QtTest>

#include "ui/desktop/qt_colour.h"
#include "ui/desktop/square_painter.h"
#include "window_fixture.h"

using qb::test::Window;

class ViewTest : public QObject {
  Q_OBJECT
 private Q_SLOTS:
  void coloursAreBlueGreenRed();
  void squaresAreWholeAndNeverUnderTwelvePixels();
  void facesLookTheWayTheyWalk();
  void aCycleRepaintsOnlyWhatChanged();
  void everyResizeKeepsTheViewBesideThePanelWithRoomForTheTime();

 private:
  static QImage Square(const qb::ViewCell& cell, int side) {
    QImage img(side, side, QImage::Format_RGB32);
    QPainter p(&img);
    qb::ui::PaintSquare(p, img.rect(), cell);
    return img;
  }
};

void ViewTest::coloursAreBlueGreenRed() {
  QCOMPARE(qb::ui::ToQColor(qb::kPauseOn, QPalette()), QColor(255, 128, 0));
  QCOMPARE(qb::ui::ToQColor(qb::kCrowdColour, QPalette()), QColor(0x53, 0x5C, 0xA2));
  QPalette palette;
  palette.setColor(QPalette::Window, QColor(1, 2, 3));
  QCOMPARE(qb::ui::ToQColor(qb::kSystemWindow, palette), QColor(1, 2, 3));
}

void ViewTest::squaresAreWholeAndNeverUnderTwelvePixels() {
  Window w;
  w.Play();
  auto* view = w.desk->Picture1();
  view->SetSquareSize(5);
  QCOMPARE(view->SquareDevicePixels(), 12);
  QCOMPARE(view->Backing().width(), 40 * 12);
  view->SetSquareSize(17);
  QCOMPARE(view->SquareDevicePixels(), 17);
  QCOMPARE(view->width(), 40 * 17);
  // The floor of the walk level (row 21, kind 2) fills its squares edge to edge.
  view->Sync(w.g.pic.Picture1);
  const QRgb floor = qb::ui::ToRgb(w.g.SquareColour(qb::SoftWall));
  const QImage& img = view->Backing();
  QCOMPARE(img.pixel(5 * 17, 21 * 17), floor);
  QCOMPARE(img.pixel(5 * 17 + 16, 21 * 17 + 16), floor);
  QCOMPARE(img.pixel(5 * 17, 20 * 17 + 16), qRgb(255, 255, 255));
}

void ViewTest::facesLookTheWayTheyWalk() {
  qb::ViewCell right{qb::kBlack, true, 1, false};
  qb::ViewCell left{qb::kBlack, true, -1, false};
  const QImage r = Square(right, 20), l = Square(left, 20);
  QVERIFY(r != l);
  QCOMPARE(r.mirrored(true, false), l);
  QCOMPARE(r.pixel(0, 0), qRgb(0, 0, 0));  // the body keeps the character's colour
  qb::ViewCell climbing = right;
  climbing.climbing = true;
  QVERIFY(Square(climbing, 20) != r);
  qb::ViewCell plain{qb::kYellow, false, 1, false};
  QCOMPARE(Square(plain, 12).pixel(6, 6), qRgb(255, 255, 0));
}

void ViewTest::aCycleRepaintsOnlyWhatChanged() {
  Window w;
  w.Play();
  w.Ticks(12);  // three characters walk
  auto* view = w.desk->Picture1();
  long most = 0;
  for (int i = 0; i < 20; ++i) {
    const long before = view->SquaresPainted();
    w.desk->Tick();
    most = std::max(most, view->SquaresPainted() - before);
  }
  QVERIFY(most > 0);
  QVERIFY2(most <= 12, qPrintable(QString::number(most)));
  // What the window shows agrees with the model, square by square.
  const int n = view->SquareDevicePixels();
  for (int vy = 0; vy < 40; ++vy)
    for (int vx = 0; vx < 40; ++vx)
      QCOMPARE(view->Backing().pixel(vx * n, vy * n),
               qb::ui::ToRgb(w.g.pic.Picture1.At(vx, vy).colour));
}

void ViewTest::everyResizeKeepsTheViewBesideThePanelWithRoomForTheTime() {
  Window w;
  w.desk->resize(951, 790);
  w.Play();
  QApplication::processEvents();
  for (const QSize size : {QSize(1580, 1150), QSize(1100, 820), QSize(951, 790), QSize(1800, 1300),
                           QSize(1580, 1150), QSize(1300, 1250)}) {
    w.desk->resize(size);
    QApplication::processEvents();
    const QRect view = w.desk->Picture1()->geometry();
    const QRect bar = w.desk->VScroll1()->geometry();
    const QRect panel = w.desk->Panel()->geometry();
    const QString where = QString("%1x%2: view %3,%4 %5 bar right %6 panel left %7")
                              .arg(size.width())
                              .arg(size.height())
                              .arg(view.x())
                              .arg(view.y())
                              .arg(view.width())
                              .arg(bar.right())
                              .arg(panel.left());
    QVERIFY2(bar.left() > view.right() && panel.left() > bar.right(), qPrintable(where));
    QVERIFY2(w.desk->Frame1()->rect().contains(panel), qPrintable(where));
    QVERIFY2(w.desk->Background()->rect().contains(w.desk->Frame1()->geometry()),
             qPrintable(where));
    // "Time Left" keeps its three lines, the first one empty, and has room for them.
    const auto* time = w.desk->Panel()->Label5();
    QCOMPARE(time->text(), QString::fromStdString(w.g.ui.Label5Caption));
    QCOMPARE(time->text().count('\n'), 2);
    QVERIFY(time->height() >= time->sizeHint().height());
  }
}

QTEST_MAIN(ViewTest)
#include "view_test.moc"
