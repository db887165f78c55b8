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
  // Any exception through the guard is reported the same way.
  QVERIFY(w.desk->Run([] {}));
  QVERIFY(!w.desk->Run([] { throw qb::OverflowFault("SavedCount"); }));
  QVERIFY(!w.desk->Run([] { throw std::out_of_range("vector"); }));
  QVERIFY(w.faults[1].contains("overflow: SavedCount") && w.faults[2].contains("vector"));
}

void FaultTest::restartAfterAFaultPlaysTheLevelAgain() {
  Window w;
  w.Play();
  w.Ticks(6);
  w.faultAnswer = qb::ui::FaultChoice::Restart;
  w.g.Leader = 150;
  w.desk->Tick();
  QCOMPARE(w.g.Leader, 0);
  QCOMPARE(w.g.CharactersReleased, 0);
  QVERIFY(w.desk->Timer1().isActive());
  w.Ticks(5);  // and it plays on, with no new fault
  QVERIFY(w.g.CharactersReleased > 0 && w.faults.size() == 1);
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
