// The start of the program: the settings it reads and keeps.
#include <QtTest>
#include <csignal>
#include <sstream>

#include "app/start_up.h"
#include "core/records.h"
#include "ui/desktop/qsettings_store.h"
#include "window_fixture.h"

class StartUpTest : public QObject {
  Q_OBJECT
 private Q_SLOTS:
  void badStoredValueFallsBackWithANote();
  void aWonLevelOutlivesAKilledGame();
};

void StartUpTest::badStoredValueFallsBackWithANote() {
  qb::test::ClearStoredSettings();
  {
    qb::ui::QSettingsStore store;
    store.Set("Options", "Music", "loud");
    store.Set("HighestLevel", "3", "many");
  }
  qb::ui::QtHost host;
  qb::Game g(host);
  qb::ui::QSettingsStore store;
  qb::app::StartUpSteps steps;
  steps.runSplash = [](const std::function<void()>& load) { load(); };
  std::ostringstream notes;
  const auto desk = qb::app::StartUp(g, store, steps, notes);
  QVERIFY(g.ui.Option(qb::OptMusic));
  QCOMPARE(int(g.HighestLevel(3)), 1);
  QVERIFY2(notes.str().find("Options/Music") != std::string::npos &&
               notes.str().find("HighestLevel/3") != std::string::npos,
           notes.str().c_str());
  desk->close();
}

void StartUpTest::aWonLevelOutlivesAKilledGame() {
  qb::test::ClearStoredSettings();
  const QString replays = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
                          "/Quorbit2/Quorbit2/replays";
  QDir(replays).removeRecursively();
  qb::test::Window levels;  // only for its program folder with Beginner1 and 2
  QTemporaryDir shots;
  QProcess game;
  game.start(qEnvironmentVariable("QUORBIT2"),
             {"--program-folder", levels.Folder(), "--start", "Beginner 1", "--fast", "--shots",
              shots.path(), "--screen-delay-ms", "100", "--quit-after-ms", "60000"});
  QVERIFY(game.waitForStarted());
  // Answered: the title card, the level-won screen and the next level's title card.
  QTRY_VERIFY_WITH_TIMEOUT(QDir(shots.path()).entryList({"*.png"}).size() >= 3, 40000);
  ::kill(static_cast<pid_t>(game.processId()), SIGKILL);
  QVERIFY(game.waitForFinished());

  // The next start offers the level that the win opened.
  qb::ui::QtHost host;
  qb::Game g(host);
  qb::ui::QSettingsStore store;
  qb::app::StartUpSteps steps;
  steps.runSplash = [](const std::function<void()>& load) { load(); };
  int offered = 0;
  steps.chooseLevel = [&](QWidget*, qb::Game& again, const auto&) {
    offered = again.HighestLevel(0);
  };
  std::ostringstream notes;
  qb::app::StartUp(g, store, steps, notes)->close();
  QCOMPARE(offered, 2);
  // The won attempt was kept too: its record and its replay file.
  QVERIFY(qb::ReadRecord(store, "Beginner1").has_value());
  QVERIFY(!QDir(replays).entryList({"Beginner1 *.replay"}).isEmpty());
}

QTEST_MAIN(StartUpTest)
#include "startup_test.moc"
