// The play window's menus: the tree as the player sees it and what the commands do to the game.
#include <QtTest>

#include "play/cycle.h"
#include "ui/desktop/qsettings_store.h"
#include "window_fixture.h"

using qb::test::Window;

class MenusTest : public QObject {
  Q_OBJECT
 private Q_SLOTS:
  void menuTreeHasTheCaptionsOrderAndChecks();
  void optionChecksFollowTheModelAndPersist();
  void settingsThatCannotBeWrittenAreReportedAndTriedAgain();
  void pausingWhileFastLeavesFastMode();
  void fastWhilePausedKeepsTheGamePaused();
  void endLevelHidesThePlayfieldAndDisablesLevelCommands();
  void restartAfterAWinMovesToTheNextLevel();
  void winningChangesTheRestartCaption();
};

void MenusTest::menuTreeHasTheCaptionsOrderAndChecks() {
  Window w;
  const auto& m = w.desk->Menus();
  QStringList titles;
  for (QAction* a : w.desk->menuBar()->actions()) titles << a->text();
  QCOMPARE(titles, QStringList({"&Game", "&Level", "&Options", "Re&play", "&Help"}));

  // Captions in order, "-" for a separator, "*" after a check item.
  const auto describe = [](QMenu* menu) {
    QStringList items;
    for (QAction* a : menu->actions())
      items << (a->isSeparator() ? QString("-") : a->text() + (a->isCheckable() ? "*" : ""));
    return items;
  };
  QCOMPARE(describe(m.menuCmd[0]), QStringList({"&Choose Level...", "-", "E&xit"}));
  QCOMPARE(describe(m.menuCmd[1]),
           QStringList({"&Pause" + QString(20, ' ') + "P*", "&Fast" + QString(23, ' ') + "Enter*",
                        "-", "&Restart Level        Esc", "&End Level", "-", "&Next Track"}));
  QCOMPARE(describe(m.menuCmd[2]),
           QStringList({"&Music*", "&Sound*", "-", "&Fast Scrolling*", "Sm&art Scrolling*", "-",
                        "&Replay Levels*", "-", "Show &Change*"}));
  QCOMPARE(describe(m.menuCmd[3]), QStringList({"&How To Play...", "-", "&About Quorbit"}));
  QCOMPARE(m.helpCmd[0]->shortcut(), QKeySequence(Qt::Key_F1));
  // The item arrays are indexed as the handlers switch on them.
  QCOMPARE(m.optionsCmd[8]->text(), QString("Show &Change"));
  QCOMPARE(m.levelCmd[6]->text(), QString("&Next Track"));
}

void MenusTest::optionChecksFollowTheModelAndPersist() {
  qb::test::ClearStoredSettings();
  {
    Window w;  // no level in play: options still toggle
    qb::ui::QSettingsStore store;
    qb::LoadSettings(w.g, store);
    w.desk->SetSettingsStore(&store);
    w.desk->SyncFromModel();
    const auto& o = w.desk->Menus().optionsCmd;
    QVERIFY(o[0]->isChecked() && o[1]->isChecked() && !o[3]->isChecked() && !o[4]->isChecked());
    o[1]->trigger();  // Sound off
    o[4]->trigger();  // Smart Scrolling on
    QVERIFY(!w.g.ui.Option(qb::OptSound));
    QVERIFY(w.g.ui.Option(qb::OptSmartScrolling));
    QVERIFY(!o[1]->isChecked() && o[4]->isChecked());
    w.desk->close();  // saves
  }
  qb::ui::QSettingsStore again;
  QCOMPARE(again.Get("Options", "Sound").value_or(""), std::string("False"));
  QCOMPARE(again.Get("Options", "SmartScrolling").value_or(""), std::string("True"));
  QCOMPARE(again.Get("Options", "Music").value_or(""), std::string("True"));
  Window next;
  qb::LoadSettings(next.g, again);
  next.desk->SyncFromModel();
  QVERIFY(!next.desk->Menus().optionsCmd[1]->isChecked());
  QVERIFY(next.desk->Menus().optionsCmd[4]->isChecked());
}

void MenusTest::settingsThatCannotBeWrittenAreReportedAndTriedAgain() {
  qb::test::ClearStoredSettings();
  qb::ui::QSettingsStore store;
  const QString file = store.FileName();
  const auto block = [&file] { return QFile::remove(file) && QDir().mkpath(file); };
  QVERIFY(block());  // a folder in the file's place: nobody can write it, not even root
  Window w;
  w.desk->SetSettingsStore(&store);
  QAction* sound = w.desk->Menus().optionsCmd[qb::OptSound];
  sound->trigger();
  QCOMPARE(w.messages.size(), std::size_t{1});
  QVERIFY2(w.messages[0].find(file.toStdString()) != std::string::npos, w.messages[0].c_str());
  w.Play();
  w.Ticks(3);  // nothing to save: no new attempt, no new message
  QCOMPARE(w.messages.size(), std::size_t{1});
  QVERIFY(QDir().rmdir(file));
  sound->trigger();  // the next change is written
  QCOMPARE(w.messages.size(), std::size_t{1});
  QCOMPARE(qb::ui::QSettingsStore().Get("Options", "Sound").value_or(""), std::string("False"));
  QVERIFY(block());
  w.desk->close();  // and so is the exit
  QCOMPARE(w.messages.size(), std::size_t{2});
  QVERIFY(QDir().rmdir(file));
}

void MenusTest::pausingWhileFastLeavesFastMode() {
  Window w;
  w.Play();
  const auto& level = w.desk->Menus().levelCmd;
  QVERIFY(w.desk->Timer1().isActive());
  QCOMPARE(w.desk->Timer1().interval(), 350);
  level[1]->trigger();
  QCOMPARE(w.desk->Timer1().interval(), 10);
  QVERIFY(level[1]->isChecked());
  level[0]->trigger();
  QVERIFY(!w.desk->Timer1().isActive());
  QVERIFY(level[0]->isChecked());
  QVERIFY(!level[1]->isChecked());
  QCOMPARE(w.g.ui.Timer1Interval, 350);
  QCOMPARE(w.desk->Panel()->Label3(0)->Back(), qb::kPauseOn);
  level[0]->trigger();  // resume
  QVERIFY(w.desk->Timer1().isActive());
  QCOMPARE(w.desk->Timer1().interval(), 350);
}

void MenusTest::fastWhilePausedKeepsTheGamePaused() {
  Window w;
  w.Play();
  const auto& level = w.desk->Menus().levelCmd;
  level[0]->trigger();
  level[1]->trigger();
  QVERIFY(!w.desk->Timer1().isActive());
  QCOMPARE(w.g.ui.Timer1Interval, 10);
  QVERIFY(level[1]->isChecked());
  QCOMPARE(w.desk->Panel()->Label3(1)->Back(), qb::kFastOn);
  level[0]->trigger();
  QVERIFY(w.desk->Timer1().isActive());
  QCOMPARE(w.desk->Timer1().interval(), 10);
}

void MenusTest::endLevelHidesThePlayfieldAndDisablesLevelCommands() {
  Window w;
  w.Play();
  QVERIFY(w.desk->Frame1()->isVisible());
  QVERIFY(w.desk->windowTitle().startsWith("Quorbit 2 - Beginner, Level 1"));
  w.desk->Menus().levelCmd[4]->trigger();
  QVERIFY(!w.desk->Frame1()->isVisible());
  QCOMPARE(w.desk->windowTitle(), QString("Quorbit 2"));
  QVERIFY(!w.desk->Timer1().isActive());
  w.desk->Menus().levelCmd[0]->trigger();  // Pause does nothing now
  QVERIFY(!w.desk->Menus().levelCmd[0]->isChecked());
  QVERIFY(!w.desk->Timer1().isActive());
  w.desk->Menus().optionsCmd[6]->trigger();  // options still toggle
  QVERIFY(!w.g.ui.Option(qb::OptReplay));
}

void MenusTest::restartAfterAWinMovesToTheNextLevel() {
  Window w;
  w.Play();
  w.Ticks(3);
  w.g.SavedCount = w.g.CharactersNeeded;  // the level is already won
  w.screens.clear();
  w.desk->Menus().levelCmd[3]->trigger();
  QCOMPARE(w.g.LevelNumber, 2);
  QVERIFY(w.screens.size() >= 2);
  QCOMPARE(w.screens[0], qb::Screen::WinLevel);
  QCOMPARE(w.screens[1], qb::Screen::Title);
  QVERIFY(w.desk->windowTitle().endsWith("Level 2"));
  QVERIFY(w.desk->Timer1().isActive());
}

void MenusTest::winningChangesTheRestartCaption() {
  Window w;
  w.Play();
  // Play the walk until the third character is home: the level counts as won from then on.
  for (int i = 0; i < 400 && w.g.SavedCount < 3; ++i) w.desk->Tick();
  QCOMPARE(w.g.SavedCount, 3);
  QCOMPARE(w.g.LevelNumber, 1);  // two more are still on their way
  QCOMPARE(w.desk->Panel()->Label7()->text(), QString("Win!"));
  QCOMPARE(w.desk->Menus().levelCmd[3]->text(), QString::fromUtf8(qb::kWinCaption));
}

QTEST_MAIN(MenusTest)
#include "menus_test.moc"
