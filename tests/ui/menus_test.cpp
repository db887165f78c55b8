// The play window's menus: what the commands do to the game.
#include <QtTest>

#include "play/cycle.h"
#include "ui/desktop/qsettings_store.h"
#include "window_fixture.h"

using qb::test::Window;

class MenusTest : public QObject {
  Q_OBJECT
 private Q_SLOTS:
  void settingsThatCannotBeWrittenAreReportedAndTriedAgain();
  void aWonLevelRestartsAsTheNextLevel();
};

void MenusTest::settingsThatCannotBeWrittenAreReportedAndTriedAgain() {
  qb::test::ClearStoredSettings();
  qb::ui::QSettingsStore store;
  const QString file = store.FileName();
  const auto block = [&file] {
    QFile::remove(file);
    return QDir().mkpath(file);
  };
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

// Once the third character is home the level counts as won while two more are on their way, and
// Restart moves on to the next level through the won screen and its title card.
void MenusTest::aWonLevelRestartsAsTheNextLevel() {
  Window w;
  w.Play();
  for (int i = 0; i < 400 && w.g.SavedCount < 3; ++i) w.desk->Tick();
  QCOMPARE(w.g.SavedCount, 3);
  QCOMPARE(w.g.LevelNumber, 1);
  w.screens.clear();
  w.desk->Menus().levelCmd[3]->trigger();
  QCOMPARE(w.g.LevelNumber, 2);
  QCOMPARE(w.screens, (std::vector{qb::Screen::WinLevel, qb::Screen::Title}));
  QVERIFY(w.desk->Timer1().isActive());
}

QTEST_MAIN(MenusTest)
#include "menus_test.moc"
