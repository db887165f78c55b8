// The level chooser: its list per tier, what Play, a double click and Cancel do, the hidden
// switches.
#include "ui/screens/choose_level.h"

#include <QApplication>
#include <QMouseEvent>
#include <QTest>
#include <QTimer>

#include "support/recorder_host.h"
#include "ui/screens/screen_style.h"
#include "ui/screens/screens.h"

using qb::ui::ChooseLevel;

namespace {

QStringList Entries(const ChooseLevel& d) {
  QStringList out;
  for (int i = 0; i < d.List1()->count(); ++i) out << d.List1()->item(i)->text();
  return out;
}

int CheckedTier(const ChooseLevel& d) {
  int found = -1;
  for (int t = 0; t < 4; ++t)
    if (d.Option1(t)->isChecked()) {
      if (found != -1) return -2;  // two options checked at once
      found = t;
    }
  return found;
}

// Clicks the round indicator: a click beside a short caption does not reach the button.
void ClickOption(QRadioButton* option) {
  QTest::mouseClick(option, Qt::LeftButton, {}, QPoint(6, option->height() / 2));
}

// A double click as the window system delivers it: press, release, double click, release.
void DoubleClick(QWidget* w, QPoint at) {
  const QPointF local(at), global(w->mapToGlobal(at));
  for (QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease,
                            QEvent::MouseButtonDblClick, QEvent::MouseButtonRelease}) {
    const bool down = type != QEvent::MouseButtonRelease;
    QMouseEvent e(type, local, global, Qt::LeftButton, down ? Qt::LeftButton : Qt::NoButton,
                  Qt::NoModifier);
    QApplication::sendEvent(w, &e);
  }
}

struct GameFixture {
  qb::test::RecorderHost host;
  qb::Game g{host};
  GameFixture(int skill, std::array<int16_t, 4> highest) {
    qb::InitTables(g);
    g.CurrentSkill = skill;
    for (int t = 0; t < 4; ++t) g.HighestLevel(t) = highest[static_cast<size_t>(t)];
  }
};

}  // namespace

class ChooseLevelTest : public QObject {
  Q_OBJECT
 private slots:
  void opensOnTheCurrentTierWithItsLastLevelSelected();
  void lastExpertTierWonOpensOnExpert();
  void changingTierRefillsTheListButKeepsTheSkill();
  void playAndEnterChooseTheSelectedLevel();
  void cancelAndEscapeChooseNothing();
  void doubleClickClosesThenPlays();
  void hiddenSwitchesOpenOrCloseEveryLevel();
  void damagedSettingsDoNotBreakTheDialog();
};

void ChooseLevelTest::opensOnTheCurrentTierWithItsLastLevelSelected() {
  {
    GameFixture f(0, {1, 5, 5, 5});
    ChooseLevel d(f.g);
    QCOMPARE(d.windowTitle(), QStringLiteral("Choose Level"));
    QCOMPARE(Entries(d), QStringList{QStringLiteral("Level 1")});
    QCOMPARE(d.List1()->currentRow(), 0);
    QCOMPARE(CheckedTier(d), 0);
  }
  {
    GameFixture f(2, {1, 1, 20, 1});
    ChooseLevel d(f.g);
    const QStringList entries = Entries(d);
    QCOMPARE(entries.size(), 20);
    QCOMPARE(entries.first(), QStringLiteral("Level 1"));
    QCOMPARE(entries.at(6), QStringLiteral("Level 7"));
    QCOMPARE(entries.last(), QStringLiteral("Level 20"));
    QCOMPARE(d.List1()->currentRow(), 19);
    QCOMPARE(CheckedTier(d), 2);
    QVERIFY(d.PlayButton()->isDefault());
  }
}

void ChooseLevelTest::lastExpertTierWonOpensOnExpert() {
  GameFixture f(4, {1, 1, 1, 6});
  ChooseLevel d(f.g);
  QCOMPARE(f.g.CurrentSkill, 3);
  QCOMPARE(CheckedTier(d), 3);
  QCOMPARE(Entries(d).size(), 6);
}

void ChooseLevelTest::changingTierRefillsTheListButKeepsTheSkill() {
  GameFixture f(0, {3, 8, 1, 1});
  ChooseLevel d(f.g);
  d.show();
  ClickOption(d.Option1(1));
  QCOMPARE(CheckedTier(d), 1);
  QCOMPARE(Entries(d).size(), 8);
  QCOMPARE(d.List1()->currentRow(), 7);
  ClickOption(d.Option1(2));
  QCOMPARE(Entries(d), QStringList{QStringLiteral("Level 1")});
  QCOMPARE(f.g.CurrentSkill, 0);
}

void ChooseLevelTest::playAndEnterChooseTheSelectedLevel() {
  {
    GameFixture f(0, {3, 8, 1, 1});
    ChooseLevel d(f.g);
    d.show();
    ClickOption(d.Option1(1));
    d.List1()->setCurrentRow(4);
    QTest::mouseClick(d.PlayButton(), Qt::LeftButton);
    QVERIFY(!d.isVisible());
    QVERIFY(d.Chosen().has_value());
    QCOMPARE(d.Chosen()->first, 1);
    QCOMPARE(d.Chosen()->second, 5);
    // Choosing does not change the tier; loading the level does.
    QCOMPARE(f.g.CurrentSkill, 0);
  }
  {
    GameFixture f(3, {1, 1, 1, 12});
    ChooseLevel d(f.g);
    d.show();
    d.List1()->setFocus();
    QTest::keyClick(d.List1(), Qt::Key_Return);
    QVERIFY(!d.isVisible());
    QVERIFY(d.Chosen().has_value());
    QCOMPARE(*d.Chosen(), std::make_pair(3, 12));
  }
}

void ChooseLevelTest::cancelAndEscapeChooseNothing() {
  {
    GameFixture f(1, {4, 4, 4, 4});
    ChooseLevel d(f.g);
    d.show();
    ClickOption(d.Option1(3));
    QTest::mouseClick(d.CancelButton(), Qt::LeftButton);
    QVERIFY(!d.isVisible());
    QVERIFY(!d.Chosen().has_value());
    QCOMPARE(f.g.CurrentSkill, 1);
  }
  {
    GameFixture f(1, {4, 4, 4, 4});
    ChooseLevel d(f.g);
    d.show();
    QTest::keyClick(&d, Qt::Key_Escape);
    QVERIFY(!d.isVisible());
    QVERIFY(!d.Chosen().has_value());
  }
  // Through the entry point, Cancel never calls play.
  GameFixture f(0, {2, 2, 2, 2});
  bool played = false;
  QTimer::singleShot(0, [] {
    auto* d = qobject_cast<ChooseLevel*>(QApplication::activeModalWidget());
    QVERIFY(d);
    QTest::mouseClick(d->CancelButton(), Qt::LeftButton);
  });
  qb::ui::ShowChooseLevel(nullptr, f.g, [&](int, int) { played = true; });
  QVERIFY(!played);
}

void ChooseLevelTest::doubleClickClosesThenPlays() {
  GameFixture f(0, {1, 1, 9, 1});
  QTimer::singleShot(0, [] {
    auto* d = qobject_cast<ChooseLevel*>(QApplication::activeModalWidget());
    QVERIFY(d);
    ClickOption(d->Option1(2));
    QListWidget* list = d->List1();
    list->scrollToItem(list->item(2));
    DoubleClick(list->viewport(), list->visualItemRect(list->item(2)).center());
  });
  std::vector<std::pair<int, int>> calls;
  bool chooserGoneWhenPlayed = false;
  qb::ui::ShowChooseLevel(nullptr, f.g, [&](int tier, int level) {
    calls.emplace_back(tier, level);
    chooserGoneWhenPlayed = QApplication::activeModalWidget() == nullptr;
  });
  QCOMPARE(calls.size(), size_t(1));
  QCOMPARE(calls[0], std::make_pair(2, 3));
  QVERIFY(chooserGoneWhenPlayed);
}

// Image3 at the top edge opens every level of every tier; Image2 near the lower left closes
// them all back to level 1. Each refills the list from the current tier.
void ChooseLevelTest::hiddenSwitchesOpenOrCloseEveryLevel() {
  GameFixture f(1, {2, 3, 4, 5});
  ChooseLevel d(f.g);
  d.show();
  using qb::ui::Twips;
  QCOMPARE(d.childAt(Twips(4440) + 4, 4), d.Image3());
  QCOMPARE(d.childAt(Twips(120) + 8, Twips(3240) + 4), d.Image2());

  ClickOption(d.Option1(3));
  QTest::mouseClick(d.Image3(), Qt::LeftButton);
  for (int t = 0; t < 4; ++t) QCOMPARE(int(f.g.HighestLevel(t)), 20);
  QCOMPARE(CheckedTier(d), 1);
  QCOMPARE(Entries(d).size(), 20);
  QCOMPARE(d.List1()->currentRow(), 19);

  QTest::mouseClick(d.Image2(), Qt::LeftButton);
  for (int t = 0; t < 4; ++t) QCOMPARE(int(f.g.HighestLevel(t)), 1);
  QCOMPARE(Entries(d), QStringList{QStringLiteral("Level 1")});
  QVERIFY(d.isVisible());
  QVERIFY(!d.Chosen().has_value());
}

// A tier or a highest level out of range (settings edited by hand) shows something sane.
void ChooseLevelTest::damagedSettingsDoNotBreakTheDialog() {
  GameFixture f(9, {0, 2, 2, 2});
  ChooseLevel d(f.g);
  QCOMPARE(CheckedTier(d), 0);
  QVERIFY(Entries(d).isEmpty());
  d.show();
  QTest::mouseClick(d.PlayButton(), Qt::LeftButton);
  QVERIFY(d.Chosen().has_value());
  QCOMPARE(d.Chosen()->second, 0);
}

QTEST_MAIN(ChooseLevelTest)
#include "choose_level_test.moc"
