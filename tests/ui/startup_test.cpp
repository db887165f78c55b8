// The start of the program: its order, the settings it reads and writes, and the program folder.
#include <QtTest>
#include <csignal>
#include <sstream>

#include "app/start_up.h"
#include "level/loader.h"
#include "test_levels.h"
#include "ui/desktop/program_folder.h"
#include "ui/desktop/qsettings_store.h"
#include "window_fixture.h"

// Play windows on the screen.
int ShownWindows() {
  int n = 0;
  for (QWidget* w : QApplication::topLevelWidgets())
    n += w->objectName() == "DeskTop" && w->isVisible();
  return n;
}

class StartUpTest : public QObject {
  Q_OBJECT
 private Q_SLOTS:
  void runsSettingsSplashWindowThenChooser();
  void badStoredValueFallsBackWithANote();
  void programFolderWithSpacesAndAccents();
  void aWonLevelOutlivesAKilledGame();
};

void StartUpTest::runsSettingsSplashWindowThenChooser() {
  qb::test::ClearStoredSettings();
  {
    qb::ui::QSettingsStore store;
    store.Set("Options", "Sound", "False");
    store.Set("HighestLevel", "0", "2");
    store.Flush();
  }
  qb::test::Window levels;  // only for its program folder with Beginner1 and 2
  levels.desk->close();
  qb::ui::QtHost host;
  host.SetScreenShower([](qb::Screen, const qb::ScreenTexts&) {});
  qb::Game g(host);
  g.ProgramFolder = levels.Folder().toStdString();
  qb::ui::QSettingsStore store;

  QStringList order;
  qb::app::StartUpSteps steps;
  steps.runSplash = [&](const std::function<void()>& load) {
    // The settings are read before the splash; the window does not exist yet.
    order << QString("splash sound=%1 interval=%2 windows=%3")
                 .arg(g.ui.Option(qb::OptSound))
                 .arg(g.ui.Timer1Interval)
                 .arg(ShownWindows());
    load();
    load();  // a second tick does not load it again
    order << QString("windows=%1").arg(ShownWindows());
  };
  steps.chooseLevel = [&](QWidget* parent, qb::Game& game,
                          const std::function<void(int, int)>& play) {
    order << QString("chooser visible=%1 replay=%2")
                 .arg(parent->isVisible())
                 .arg(QString::fromStdString(game.ui.Label8Caption).replace("\n", "|"));
    play(0, game.HighestLevel(0));
  };
  std::ostringstream notes;
  const int before = ShownWindows();
  const auto desk = qb::app::StartUp(g, store, steps, notes);
  QCOMPARE(order, QStringList({QString("splash sound=0 interval=350 windows=%1").arg(before),
                               QString("windows=%1").arg(before + 1),
                               "chooser visible=1 replay=Replay|On"}));
  QCOMPARE(g.LevelNumber, 2);
  QVERIFY(desk->Timer1().isActive());
  QVERIFY(notes.str().empty());
  desk->close();
}

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
  QVERIFY2(notes.str().find("Options/Music") != std::string::npos, notes.str().c_str());
  QVERIFY(notes.str().find("HighestLevel/3") != std::string::npos);
  desk->close();
}

void StartUpTest::programFolderWithSpacesAndAccents() {
  QTemporaryDir dir;
  const QString exe = dir.filePath("bin");
  const QString data = dir.filePath(QString::fromUtf8("Données du jeu/quorbit2"));
  QDir().mkpath(exe);
  QDir().mkpath(data + "/Levels");
  QCOMPARE(qb::ui::FindProgramFolder(exe, {dir.filePath("none"), data}), data);

  // The level loads from there through the game's host.
  QFile file(data + "/Levels/Beginner1.lvl");
  QVERIFY(file.open(QIODevice::WriteOnly));
  const auto bytes = qb::WriteLevel(qb::test::WalkLevel(1, "Accents"));
  file.write(reinterpret_cast<const char*>(bytes.data()), static_cast<qint64>(bytes.size()));
  file.close();
  qb::ui::QtHost host;
  host.SetScreenShower([](qb::Screen, const qb::ScreenTexts&) {});
  qb::Game g(host);
  g.ProgramFolder = data.toStdString();
  QVERIFY(qb::LoadLevel(g, qb::LevelPath(g, 0, 1)).Loaded());
  QCOMPARE(g.LevelName, std::string("Accents"));
}

void StartUpTest::aWonLevelOutlivesAKilledGame() {
  qb::test::ClearStoredSettings();
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
}

QTEST_MAIN(StartUpTest)
#include "startup_test.moc"
