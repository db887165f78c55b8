// The game cycle: releases, the replay tick, a level ending inside a cycle. Slow motion is
// pinned by the golden every-tool trace.
#include "play/cycle.h"

#include <gtest/gtest.h>

#include "support/level_builder.h"

namespace qb {
namespace {

using test::MakeLevel;
using test::TestGame;

const std::vector<std::string> kLongFloor = {std::string(60, '.'), std::string(60, '.'),
                                             std::string(60, '#')};

TEST(Release, OneEveryIntervalCyclesFromTheFirstActiveSlotRoundRobin) {
  LevelData d = MakeLevel(kLongFloor, 0, 1, 5, 0, 3);
  d.Slots[0].EntranceActive = 0;
  d.Slots[1] = {-1, 0, 0, 10, 1, 0, 0, 0, 0};
  d.Slots[4] = {-1, 0, 0, 30, 1, 0, 0, 0, 0};
  TestGame t(d);
  t.Ticks(2);
  EXPECT_EQ(t.g.CharactersReleased, 0);
  t.Ticks(1);  // the third cycle
  EXPECT_EQ(t.g.CharactersReleased, 1);
  EXPECT_EQ(t.C(0).X, 10);
  t.Ticks(3);
  EXPECT_EQ(t.C(1).X, 30);
  t.Ticks(3);
  EXPECT_EQ(t.C(2).X, 10);
}

TEST(Release, NoEntranceReleasesNobody) {
  LevelData none = MakeLevel(kLongFloor, 0, 1, 5, 0, 1);
  none.Slots[0].EntranceActive = 0;
  TestGame t(none);
  t.Ticks(50);
  EXPECT_EQ(t.g.CharactersReleased, 0);
  EXPECT_EQ(t.g.LastEnd, LevelEnd::None);
}

TEST(ReplayTick, StopsAtTwoThousandAndMarksTheEnd) {
  TestGame t(MakeLevel(kLongFloor, 0, 1, 0, 0, 1, 5000));
  t.Ticks(2001);
  EXPECT_EQ(t.g.ReplayTick, 2000);
  EXPECT_EQ(t.g.ReplayLog(2000), "E");
}

TEST(LevelEnd, EndsTheCycleItHappensIn) {
  // The only character falls out of the bottom in cycle 2. With needed 0 the level is won as
  // soon as the last is gone; the replay tick of that cycle is not counted.
  TestGame t(MakeLevel({".", "."}, 0, 0, 1, 0, 1));
  t.Ticks(2);
  EXPECT_EQ(t.g.LastEnd, LevelEnd::None);
  t.Ticks(1);
  EXPECT_EQ(t.g.LastEnd, LevelEnd::Won);
  EXPECT_EQ(t.g.ReplayTick, 2);
}

TEST(LevelEnd, LostRestartsTheLevelWithoutItsTitleCard) {
  TestGame t(MakeLevel({"...", "###"}, 0, 0, 1, 1, 1));
  t.Ticks(4);
  EXPECT_EQ(t.g.LastEnd, LevelEnd::Lost);
  ASSERT_EQ(t.host.screens.size(), 1u);
  EXPECT_EQ(t.host.screens[0], Screen::LooseLevel);
  EXPECT_TRUE(t.host.PlayedSound(108));
  EXPECT_EQ(t.g.CharactersReleased, 0);  // the level was loaded again
}

}  // namespace
}  // namespace qb
