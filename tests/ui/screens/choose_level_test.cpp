// The level chooser: its list per tier, and what Play chooses.
#include "ui/screens/choose_level.h"

#include <QApplication>
#include <QTest>

#include "support/recorder_host.h"
#include "ui/screens/screens.h"

using qb::ui::ChooseLevel;

namespace {

int CheckedTier(const ChooseLevel& d) {
  for (int t = 0; t < 4; ++t)
    if (d.Option1(t)->isChecked()) return t;
  return -1;
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
    QCOMPARE(d.List1()->count(), c.levels);
    if (c.levels > 0)
      QCOMPARE(d.List1()->item(c.levels - 1)->text(), QString("Level %1").arg(c.levels));
    QCOMPARE(d.List1()->currentRow(), c.levels - 1);
    d.show();
    d.List1()->setFocus();
    QTest::keyClick(d.List1(), Qt::Key_Return);  // Play is the default button
    QCOMPARE(d.Chosen(), std::make_optional(std::make_pair(c.tier, c.levels)));
  }
}

QTEST_MAIN(ChooseLevelTest)
#include "choose_level_test.moc"
