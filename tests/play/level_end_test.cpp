// The level timer, the move to the next level and tier, and the end of the game.
#include <gtest/gtest.h>

#include "core/level_file.h"
#include "level/loader.h"
#include "play/cycle.h"
#include "sim/level_timer.h"
#include "support/level_builder.h"

namespace qb {
namespace {

using test::MakeLevel;
using test::TestGame;

LevelData Corridor(int time) {
  return MakeLevel({std::string(60, '.'), std::string(60, '#')}, 0, 0, 1, 1, 200, time);
}

TEST(LevelTimer, BlinksInTheWarningPhaseAndRunsOutAfterTwiceTheTimePlusOneCycles) {
  TestGame t(Corridor(40));
  t.Ticks(19);  // 30: red
  EXPECT_EQ(t.g.ui.Label5Back, kTimeWarning);
  t.Ticks(2 * 40 - 19);
  EXPECT_EQ(t.g.TimeLeft, 0);
  EXPECT_EQ(t.g.LastEnd, LevelEnd::None);
  t.Ticks(1);
  EXPECT_EQ(t.g.LastEnd, LevelEnd::Timeout);
  ASSERT_FALSE(t.host.screens.empty());
  EXPECT_EQ(t.host.screens[0], Screen::LooseLevel);
  // Reloaded with its title card, which discards the recording.
  EXPECT_EQ(t.host.screens.back(), Screen::Title);
  EXPECT_EQ(t.g.TimeLeft, 40);
}

// A game whose level files are one-character walks to a door, for every tier and number.
struct Progress : TestGame {
  Progress() : TestGame(Corridor(100)) {
    for (int tier = 0; tier < 4; ++tier)
      for (int n = 1; n <= 20; ++n) {
        LevelData d = MakeLevel({"..D", "###"}, 0, 0, 1, 1, 1, 100);
        d.Skill = tier;
        d.Number = n;
        host.files[LevelPath(g, tier, n)] = WriteLevel(d);
      }
  }
  void Start(int tier, int n) {
    g.LevelFile = LevelPath(g, tier, n);
    g.SkipTitle = True;
    ASSERT_TRUE(LoadLevel(g, g.LevelFile).Loaded());
  }
};

TEST(NextLevel, WinningMovesOnAndRaisesTheHighestLevel) {
  Progress p;
  p.Start(1, 7);
  p.Ticks(3);
  EXPECT_EQ(p.g.LevelNumber, 8);
  EXPECT_EQ(p.g.CurrentSkill, 1);
  EXPECT_EQ(p.g.HighestLevel(1), 8);
  EXPECT_EQ(p.host.screens.back(), Screen::Title);
  EXPECT_TRUE(p.host.PlayedSound(113));
}

TEST(NextLevel, LevelTwentyLeadsToTheNextTierWithItsMessage) {
  Progress p;
  p.Start(0, 20);
  p.Ticks(3);
  EXPECT_EQ(p.g.CurrentSkill, 1);
  EXPECT_EQ(p.g.LevelNumber, 1);
  EXPECT_EQ(p.g.HighestLevel(1), 1);
  EXPECT_TRUE(p.host.PlayedSound(114));
}

TEST(NextLevel, TheLastExpertLevelWinsTheGameAndEndsTheLevel) {
  Progress p;
  p.Start(3, 20);
  p.Ticks(3);
  ASSERT_GE(p.host.screens.size(), 2u);
  EXPECT_EQ(p.host.screens[0], Screen::WinLevel);
  EXPECT_EQ(p.host.screens[1], Screen::WonGame);
  EXPECT_FALSE(p.g.ui.Frame1Visible);
  EXPECT_EQ(p.g.CurrentSkill, 4);
}

}  // namespace
}  // namespace qb
