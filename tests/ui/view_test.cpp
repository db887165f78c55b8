// Painting the model: faces, repainting only what changed, and the layout under resizing.
#include <QtTest>

#include "ui/desktop/square_painter.h"
#include "window_fixture.h"

using qb::test::Window;

class ViewTest : public QObject {
  Q_OBJECT
 private Q_SLOTS:
  void facesLookTheWayTheyWalk();
  void aCycleRepaintsOnlyWhatChanged();
  void everyResizeKeepsTheViewBesideThePanelWithRoomForTheTime();
};

static QImage Square(const qb::ViewCell& cell, int side) {
  QImage img(side, side, QImage::Format_RGB32);
  QPainter p(&img);
  qb::ui::PaintSquare(p, img.rect(), cell);
  return img;
}

// A face looks the way its character walks and shows when it climbs; a bare square is all colour.
void ViewTest::facesLookTheWayTheyWalk() {
  qb::ViewCell right{qb::kBlack, true, 1, false}, left{qb::kBlack, true, -1, false};
  const QImage r = Square(right, 20);
  QVERIFY(r != Square(left, 20));
  QCOMPARE(r.mirrored(true, false), Square(left, 20));
  right.climbing = true;
  QVERIFY(Square(right, 20) != r);
  QCOMPARE(Square({qb::kYellow, false, 1, false}, 12).pixel(6, 6), qRgb(255, 255, 0));
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
    const QRect view = w.desk->Picture1()->geometry(), bar = w.desk->VScroll1()->geometry(),
                panel = w.desk->Panel()->geometry();
    const QByteArray where = QString("%1x%2").arg(size.width()).arg(size.height()).toUtf8();
    QVERIFY2(bar.left() > view.right() && panel.left() > bar.right(), where);
    QVERIFY2(w.desk->Frame1()->rect().contains(panel), where);
    QVERIFY2(w.desk->Background()->rect().contains(w.desk->Frame1()->geometry()), where);
    // "Time Left" keeps its three lines, the first one empty, and has room for them.
    const auto* time = w.desk->Panel()->Label5();
    QCOMPARE(time->text(), QString::fromStdString(w.g.ui.Label5Caption));
    QCOMPARE(time->text().count('\n'), 2);
    QVERIFY2(time->height() >= time->sizeHint().height(), where);
  }
}

QTEST_MAIN(ViewTest)
#include "view_test.moc"
