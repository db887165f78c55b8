// The play window's layout under resizing.
#include <QtTest>

#include "window_fixture.h"

using qb::test::Window;

class ViewTest : public QObject {
  Q_OBJECT
 private Q_SLOTS:
  void everyResizeKeepsTheViewBesideThePanelWithRoomForTheTime();
};

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
    QCOMPARE(time->text().count('\n'), 2);
    QVERIFY2(time->height() >= time->sizeHint().height(), where);
  }
}

QTEST_MAIN(ViewTest)
#include "view_test.moc"
