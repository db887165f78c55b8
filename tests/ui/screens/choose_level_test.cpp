// The level chooser: its list per tier, what Play, a double click and Cancel do, the hidden
// switches.
#include "ui/screens/choose_level.h"

#include <QApplication>
#include <QMouseEvent>
#include <QTest>
#include <QTimer>

#include "support/recorder_host.h"
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
  void cancelAndEscapeChooseNothing();
  void doubleClickClosesThenPlays();
  void hiddenSwitchesOpenOrCloseEveryLevel();
};

// The list holds levels 1 to the tier's highest, the last selected. The last Expert level won
// (tier 4) opens on Expert; a tier or a highest level out of range (settings edited by hand)
// shows something sane.
void ChooseLevelTest::opensOnTheCurrentTierWithItsLastLevelSelected() {
  struct Case {
    int skill;
    std::array<int16_t, 4> highest;
    int tier, levels;
  };
  for (const Case& c : {Case{0, {1, 5, 5, 5}, 0, 1}, Case{2, {1, 1, 20, 1}, 2, 20},
                        Case{4, {1, 1, 1, 6}, 3, 6}, Case{9, {0, 2, 2, 2}, 0, 0}}) {
    GameFixture f(c.skill, c.highest);
    ChooseLevel d(f.g);
    QCOMPARE(CheckedTier(d), c.tier);
    const QStringList entries = Entries(d);
    QCOMPARE(entries.size(), c.levels);
    if (c.levels > 0) QCOMPARE(entries.last(), QStringLiteral("Level %1").arg(c.levels));
    QCOMPARE(d.List1()->currentRow(), c.levels - 1);
    d.show();
    d.List1()->setFocus();
    QTest::keyClick(d.List1(), Qt::Key_Return);  // Play is the default button
    QCOMPARE(d.Chosen(), std::make_optional(std::make_pair(c.tier, c.levels)));
  }
}

void ChooseLevelTest::cancelAndEscapeChooseNothing() {
  for (bool escape : {false, true}) {
    GameFixture f(1, {4, 4, 4, 4});
    ChooseLevel d(f.g);
    d.show();
    ClickOption(d.Option1(3));
    if (escape)
      QTest::keyClick(&d, Qt::Key_Escape);
    else
      QTest::mouseClick(d.CancelButton(), Qt::LeftButton);
    QVERIFY(!d.isVisible() && !d.Chosen().has_value());
    QCOMPARE(f.g.CurrentSkill, 1);
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

QTEST_MAIN(ChooseLevelTest)
#include "choose_level_test.moc"
