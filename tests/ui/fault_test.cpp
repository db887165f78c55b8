// Faults at the window's event boundaries: caught, reported, the game stopped, and recoverable.
#include "core/fault.h"

#include <QtTest>

#include "window_fixture.h"

using qb::test::Window;

class FaultTest : public QObject {
  Q_OBJECT
 private Q_SLOTS:
  void faultInATickStopsTheGameAndIsReported();
  void restartAfterAFaultPlaysTheLevelAgain();
  void anyExceptionThroughTheGuardIsReported();
  void missingLevelShowsTheMessageAndKeepsTheGame();
};

void FaultTest::faultInATickStopsTheGameAndIsReported() {
  Window w;
  w.Play();
  w.Ticks(2);
  w.g.Leader = 150;  // outside the character table: the next cycle faults
  w.desk->Tick();
  QCOMPARE(w.faults.size(), std::size_t{1});
  QVERIFY2(w.faults[0].contains("Chars"), qPrintable(w.faults[0]));
  QVERIFY(!w.desk->Timer1().isActive());
  QVERIFY(!w.g.ui.Timer1Enabled);
  QVERIFY(w.desk->isVisible());
}

void FaultTest::restartAfterAFaultPlaysTheLevelAgain() {
  Window w;
  w.Play();
  w.Ticks(6);
  w.faultAnswer = qb::ui::FaultChoice::Restart;
  w.g.Leader = 150;
  w.desk->Tick();
  QCOMPARE(w.faults.size(), std::size_t{1});
  QCOMPARE(w.g.Leader, 0);
  QCOMPARE(w.g.CharactersReleased, 0);
  QVERIFY(w.desk->Timer1().isActive());
  w.Ticks(5);  // and it plays on
  QVERIFY(w.g.CharactersReleased > 0);
  QCOMPARE(w.faults.size(), std::size_t{1});
}

void FaultTest::anyExceptionThroughTheGuardIsReported() {
  Window w;
  w.Play();
  QVERIFY(w.desk->Run([] {}));
  QVERIFY(!w.desk->Run([] { throw qb::OverflowFault("SavedCount"); }));
  QVERIFY(!w.desk->Run([] { throw std::out_of_range("vector"); }));
  QCOMPARE(w.faults.size(), std::size_t{2});
  QVERIFY(w.faults[0].contains("overflow: SavedCount"));
  QVERIFY(w.faults[1].contains("vector"));
  QVERIFY(!w.desk->Timer1().isActive());
}

void FaultTest::missingLevelShowsTheMessageAndKeepsTheGame() {
  Window w;
  w.Play();
  w.Ticks(5);
  const int released = w.g.CharactersReleased;
  w.desk->PlayLevel(0, 7);  // no such file
  QCOMPARE(w.messages.size(), std::size_t{1});
  QCOMPARE(w.messages[0], std::string("This level does not exist!"));
  QVERIFY(w.faults.empty());
  QCOMPARE(w.g.CharactersReleased, released);
  QVERIFY(w.desk->Frame1()->isVisible());
}

QTEST_MAIN(FaultTest)
#include "fault_test.moc"
