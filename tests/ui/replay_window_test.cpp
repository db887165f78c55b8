// The Replay menu in the play window: a saved attempt replays the same in a fresh game, a bad file
// leaves the game alone, and a win is kept as it happens.
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

#include "core/records.h"
#include "level/loader.h"
#include "play/commands.h"
#include "play/replay.h"
#include "sim_run.h"
#include "ui/desktop/qsettings_store.h"
#include "ui/desktop/replay_menu.h"
#include "verify.h"
#include "window_fixture.h"

using qb::test::Window;

namespace {

const char* const kLevel = "Expert20";

void CopyLevel(Window& w) {
  QVERIFY(QFile::copy(QString(QUORBIT_LEVELS_DIR) + "/" + kLevel + ".lvl",
                      w.Folder() + "/Levels/" + kLevel + ".lvl"));
}

QString SolutionPath() {
  return QString(QUORBIT_SOLUTIONS_DIR) + "/" + kLevel + ".replay";
}

// The saved count and the cycles of the solution's win, as the headless runner plays it.
std::pair<int, int> SolutionResult() {
  QFile in(SolutionPath());
  in.open(QIODevice::ReadOnly);
  qb::SimOptions options;
  options.level = std::string(QUORBIT_LEVELS_DIR) + "/" + kLevel + ".lvl";
  options.replay = in.readAll().toStdString();
  std::ostringstream out, err;
  qb::RunSimulation(options, out, err);
  const QJsonObject result =
      QJsonDocument::fromJson(QString::fromStdString(out.str()).trimmed().toUtf8()).object();
  return {result["saved"].toInt(-1), result["cycles"].toInt(-1)};
}

qb::ReplayFile Solution() {
  QFile in(SolutionPath());
  in.open(QIODevice::ReadOnly);
  return qb::ParseReplay(in.readAll().toStdString());
}

// What a cycle leaves: every character's place and state, the counts and the view.
QString State(const qb::Game& g) {
  QString s = QString("%1 %2 %3|").arg(g.SavedCount).arg(g.CharactersReleased).arg(g.TimeLeft);
  for (int i = 0; i < g.CharactersTotal; ++i) {
    const qb::CharRecord& c = g.Chars(i);
    s += QString("%1,%2,%3,%4;").arg(c.X).arg(c.Y).arg(c.Dir).arg(c.Out);
  }
  for (int y = 0; y < qb::kViewSize; ++y)
    for (int x = 0; x < qb::kViewSize; ++x)
      s += QString::number(g.pic.Picture1.At(x, y).colour, 36);
  return s;
}

// Runs `cycles` ticks; from cycle `pressFrom` on, the solution's tools are pressed by hand.
QStringList Run(Window& w, int cycles, int pressFrom = 1 << 30) {
  const qb::ReplayFile solution = Solution();
  QStringList trace;
  for (int i = 0; i < cycles; ++i) {
    if (w.g.attempt.cycles >= pressFrom)
      for (char letter : solution.slots[static_cast<std::size_t>(w.g.ReplayTick)])
        w.desk->Run([&] {
          qb::ToolButtonDown(w.g, static_cast<int>(std::string_view("CKBDJRXL").find(letter)));
        });
    w.desk->Tick();
    trace << State(w.g);
  }
  return trace;
}

}  // namespace

class ReplayWindowTest : public QObject {
  Q_OBJECT
 private Q_SLOTS:
  void initTestCase() { QStandardPaths::setTestModeEnabled(true); }
  void aSavedAttemptReplaysTheSameInAFreshGame();
  void aBadFileNamesTheLineAndLeavesTheGameAlone();
  void aWinIsKeptAsAReplayAndARecordBeforeTheWinScreen();
};

void ReplayWindowTest::aSavedAttemptReplaysTheSameInAFreshGame() {
  const QString saved = QDir(QDir::tempPath()).filePath("quorbit-replay-window-test.replay");
  QStringList recorded;
  // Halfway the player takes over; the attempt stops short of the win, which would end it.
  const int cycles = SolutionResult().second, half = cycles / 2, played = cycles - 5;
  QVERIFY(half > 50);
  {
    // The solution plays up to halfway; then the player takes over and presses the rest.
    Window w;
    CopyLevel(w);
    QCOMPARE(w.desk->Replay()->LoadFrom(SolutionPath()), QString());
    recorded = Run(w, half);
    w.desk->Run([&] { qb::Label8_Click(w.g); });
    recorded += Run(w, played - half, half);
    QCOMPARE(w.desk->Replay()->SaveTo(saved), QString());
  }
  {
    Window fresh;
    CopyLevel(fresh);
    QCOMPARE(fresh.desk->Replay()->LoadFrom(saved), QString());
    const QStringList replayed = Run(fresh, played);
    QCOMPARE(replayed.size(), recorded.size());
    for (int i = 0; i < recorded.size(); ++i)
      QVERIFY2(replayed[i] == recorded[i], qPrintable(QString("cycle %1 differs").arg(i)));
  }
  {
    Window changed;  // one byte of the level's title differs: a warning, and it plays anyway
    CopyLevel(changed);
    QFile level(changed.Folder() + "/Levels/" + kLevel + ".lvl");
    QVERIFY(level.open(QIODevice::ReadWrite));
    QByteArray bytes = level.readAll();
    bytes[2] = bytes[2] == 'e' ? 'f' : 'e';  // the title's first letter, after its length
    level.seek(0);
    level.write(bytes);
    level.close();
    QVERIFY(changed.desk->Replay()->LoadFrom(saved).contains("has changed"));
    QVERIFY(changed.g.ReplayPlaying);
  }
  QFile::remove(saved);
}

void ReplayWindowTest::aBadFileNamesTheLineAndLeavesTheGameAlone() {
  Window w;
  w.Play(1);
  w.Ticks(5);
  const qb::Game before = w.g;
  const QString bad = QDir(QDir::tempPath()).filePath("quorbit-bad.replay");
  QFile file(bad);
  QVERIFY(file.open(QIODevice::WriteOnly));
  file.write("# level: Beginner1.lvl\n3 C\n7 Z\n");
  file.close();
  const QString message = w.desk->Replay()->LoadFrom(bad);
  QVERIFY2(message.contains("line 3"), qPrintable(message));
  QVERIFY(w.g.attempt == before.attempt && w.g.Chars == before.Chars &&
          w.g.LevelFile == before.LevelFile);
  QFile::remove(bad);
}

void ReplayWindowTest::aWinIsKeptAsAReplayAndARecordBeforeTheWinScreen() {
  qb::test::ClearStoredSettings();
  QDir(qb::ui::ReplayMenu::ReplaysFolder()).removeRecursively();
  Window w;
  CopyLevel(w);
  qb::ui::QSettingsStore store;
  w.desk->SetSettingsStore(&store);
  const auto [saved, cycles] = SolutionResult();
  QVERIFY(cycles > 0);
  bool keptBeforeScreen = false;
  w.host.SetScreenShower([&](qb::Screen s, const qb::ScreenTexts&) {
    if (s != qb::Screen::WinLevel) return;
    // What a fresh process would find if this one were killed now.
    QSettings disk(QSettings::NativeFormat, QSettings::UserScope, "Quorbit2", "Quorbit2");
    const QStringList files =
        QDir(qb::ui::ReplayMenu::ReplaysFolder()).entryList({"Expert20 *.replay"});
    keptBeforeScreen =
        files.size() == 1 && disk.value("Records/Expert20/BestSaved").toInt() == saved;
  });
  QCOMPARE(w.desk->Replay()->LoadFrom(SolutionPath()), QString());
  Run(w, cycles);
  QVERIFY(keptBeforeScreen);
  // The replay kept of the win wins again when played against the level.
  std::ostringstream verdict;
  QVERIFY2(qb::VerifyReplays(w.Folder().toStdString() + "/Levels",
                             qb::ui::ReplayMenu::ReplaysFolder().toStdString(), verdict),
           verdict.str().c_str());
  const auto record = qb::ReadRecord(store, "Expert20");
  QVERIFY(record && record->fewestCycles == cycles);
}

QTEST_MAIN(ReplayWindowTest)
#include "replay_window_test.moc"
