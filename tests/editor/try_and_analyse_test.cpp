// The editor's try window wins a level by a key pressed in time and saves a solution that the
// headless runner wins with; the analysis panel shows the analyse subcommand's figures and marks
// real squares.
#include <QLabel>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include "analysis/headless.h"
#include "app/editor/analysis_panel.h"
#include "app/editor/try_window.h"
#include "core/level_file.h"
#include "play/cycle.h"
#include "play/replay.h"
#include "support/level_builder.h"

namespace {

// One walker from (1, 7); a wall two high at columns 10 and 11 turns him back. Only a Build laid
// as he reaches column 8 (cycle 8) lifts him over it to the door at (18, 7).
qb::LevelData OneWall() {
  qb::LevelData d = qb::test::MakeLevel({"MMMMMMMMMMMMMMMMMMMM",  //
                                         "M..................M",  //
                                         "M..................M",  //
                                         "M..................M",  //
                                         "M..................M",  //
                                         "M..................M",  //
                                         "M.........MM.......M",  //
                                         "M.........MM......DM",  //
                                         "MMMMMMMMMMMMMMMMMMMM"},
                                        1, 7, 1, 1, 1, 60);
  d.ToolStock[qb::ToolBuild] = 1;
  return d;
}

QByteArray ReadAll(const QString& path) {
  QFile f(path);
  return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

// Ticks until the attempt ends or `done` holds.
void TickUntil(qb::editor::TryWindow& w, const std::function<bool()>& done) {
  for (int i = 0; i < 200 && !done(); ++i) w.Tick();
}

}  // namespace

class TryAndAnalyseTest : public QObject {
  Q_OBJECT
 private Q_SLOTS:
  void TryWindowWinsByKeyAndSavesASolutionTheRunnerWins();
  void AnalysisPanelShowsTheFiguresAndMarksOfAShippedSolution();
};

void TryAndAnalyseTest::TryWindowWinsByKeyAndSavesASolutionTheRunnerWins() {
  QTemporaryDir dir;
  const QString solution = dir.filePath("OneWall.replay");
  qb::editor::TryWindow w(OneWall(), solution);
  w.show();
  qb::Game& g = w.game();
  QVERIFY(g.ui.Timer1Enabled);

  bool ended = false;
  connect(&w, &qb::editor::TryWindow::attemptEnded, this, [&] { ended = true; });
  TickUntil(w, [&] { return ended || g.Chars(0).X == 8; });
  QCOMPARE(g.ReplayTick, 8);
  QTest::keyClick(&w, Qt::Key_3);  // Build
  QCOMPARE(g.ToolStock(qb::ToolBuild), 0);
  TickUntil(w, [&] { return ended; });
  QVERIFY(w.Won());
  QVERIFY(w.ResultLabel()->text().startsWith("Won: 1 saved of 1 needed"));
  QVERIFY(!g.ui.Timer1Enabled);  // the attempt stays ended; no other level is loaded
  QCOMPARE(QString::fromStdString(g.LevelTitle), QString("Test"));

  QCOMPARE(w.SaveSolution(solution), QString());
  const QString text = ReadAll(solution);
  QVERIFY(text.contains("# level: OneWall.lvl\n"));
  QVERIFY(text.endsWith("\n8 B\n"));
  const std::vector<uint8_t> bytes = qb::WriteLevel(OneWall());
  QFile level(dir.filePath("OneWall.lvl"));
  QVERIFY(level.open(QIODevice::WriteOnly));
  level.write(reinterpret_cast<const char*>(bytes.data()), static_cast<qint64>(bytes.size()));
  level.close();
  QProcess sim;
  sim.start(QUORBIT_SIM, {level.fileName(), "--replay", solution});
  QVERIFY(sim.waitForFinished(20000));
  QVERIFY2(sim.readAllStandardOutput().contains("{\"result\":\"won\""), "quorbit-sim did not win");

  // Esc starts again; the game replays the attempt, which wins once more without a key.
  ended = false;
  QTest::keyClick(&w, Qt::Key_Escape);
  QVERIFY(!w.Won() && w.isVisible());
  QCOMPARE(g.ToolStock(qb::ToolBuild), 1);
  TickUntil(w, [&] { return ended; });
  QVERIFY(w.Won());

  // A level the game refuses is not played: the loader's message, and keys do nothing.
  qb::LevelData refused = OneWall();
  refused.CharactersTotal = 101;
  qb::editor::TryWindow no(refused, {});
  QTest::keyClick(&no, Qt::Key_3);
  QTest::keyClick(&no, Qt::Key_Escape);
  QVERIFY(no.ResultLabel()->text().startsWith("The level file level.lvl cannot be played"));
  QVERIFY(no.AttemptReplay().empty() && !no.game().ui.Timer1Enabled);
}

void TryAndAnalyseTest::AnalysisPanelShowsTheFiguresAndMarksOfAShippedSolution() {
  const QString levelPath = QString(QUORBIT_LEVELS_DIR) + "/Expert3.lvl";
  const QString replayPath = QString(QUORBIT_SOLUTIONS_DIR) + "/Expert3.replay";
  const QByteArray bytes = ReadAll(levelPath);
  qb::LevelRead read = qb::ReadLevel(std::vector<uint8_t>(bytes.begin(), bytes.end()));
  const std::string replay = ReadAll(replayPath).toStdString();
  QVERIFY(read.status == qb::ReadStatus::Ok && !replay.empty());

  qb::editor::AnalysisPanel panel;
  QSignalSpy marked(&panel, &qb::editor::AnalysisPanel::marksChanged);
  panel.Analyse(read.data, replay);
  QTRY_VERIFY_WITH_TIMEOUT(!panel.Busy(), 30000);
  QCOMPARE(marked.count(), 1);

  // The panel's lines are the subcommand's, but for the file name and the timing.
  QProcess tool;
  tool.start(QUORBIT_LEVEL, {"analyse", levelPath, "--replay", replayPath});
  QVERIFY(tool.waitForFinished(30000));
  QStringList expected = QString(tool.readAllStandardOutput()).trimmed().split('\n');
  expected.removeLast();
  expected[0].remove(levelPath + ": ");
  QCOMPARE(panel.Text(), expected.join('\n'));

  // A hollow carved inside solid wall is sealed: marked, with the narrow jump where the leader
  // stood when it was made.
  qb::LevelData& d = read.data;
  QPoint hollow(-1, -1);
  for (int y = 1; y + 1 < d.GridHeight && hollow.x() < 0; ++y)
    for (int x = 1; x + 1 < d.GridWidth && hollow.x() < 0; ++x) {
      bool solid = true;
      for (int dy = -1; dy <= 1; ++dy)
        for (int dx = -1; dx <= 1; ++dx) solid = solid && d.Square(x + dx, y + dy) == qb::MetalWall;
      if (solid) hollow = QPoint(x, y);
    }
  QVERIFY(hollow.x() >= 0);
  d.Square(hollow.x(), hollow.y()) = qb::Empty;
  panel.Analyse(d, replay);
  QTRY_VERIFY_WITH_TIMEOUT(!panel.Busy(), 30000);
  qb::test::TestGame played(d);
  qb::analysis::Schedule(played.g, qb::analysis::PressesOf(qb::ParseReplay(replay).slots));
  while (played.g.ReplayTick < 10) (void)qb::RunCycle(played.g);
  const qb::CharRecord& leader = played.g.Chars(played.g.Leader);
  QStringList marks;
  for (const qb::editor::MapMark& m : panel.Marks())
    marks << QString("%1,%2 %3").arg(m.x).arg(m.y).arg(m.why.section(':', 0, 0));
  QCOMPARE(marks, QStringList({QString("%1,%2 cycle 10 J").arg(leader.X).arg(leader.Y),
                               QString("%1,%2 no character can reach this sealed region of 1 "
                                       "squares")
                                   .arg(hollow.x())
                                   .arg(hollow.y())}));

  // A level the game refuses shows the loader's message and no figures.
  qb::LevelData refused = read.data;
  refused.Skill = 7;
  panel.Analyse(refused, replay);
  QVERIFY(panel.Text().startsWith("The level file level.lvl cannot be played"));
  QVERIFY(panel.Marks().empty());
}

QTEST_MAIN(TryAndAnalyseTest)
#include "try_and_analyse_test.moc"
