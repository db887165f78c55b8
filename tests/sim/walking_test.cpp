// The edges of walking and falling, run cycle by cycle: the sides and the bottom of the level,
// and the longest fall survived. Ordinary walks are pinned by the golden traces and solutions.
#include <gtest/gtest.h>

#include "support/level_builder.h"

namespace qb {
namespace {

using test::MakeLevel;
using test::TestGame;

TEST(Walking, LeavingTheSideOfTheLevelKills) {
  TestGame t(MakeLevel({"....", "####"}, 0, 0, 2, 0, 1));
  t.Ticks(4);
  EXPECT_TRUE(t.C(0).Out);
  t.Ticks(1);
  EXPECT_FALSE(t.C(0).Out);
  EXPECT_TRUE(t.host.PlayedSound(107));
}

// A shaft: the character appears at the top and falls until the floor at row `floor`.
LevelData Shaft(int floor, char landing = '#') {
  std::vector<std::string> rows;
  for (int y = 0; y < floor; ++y) rows.push_back("M.M");
  rows.push_back(std::string("M") + landing + "M");
  rows.push_back("MMM");
  return MakeLevel(rows, 1, 0, 2, 1, 1);
}

TEST(Falling, FifteenSquaresIsSurvivedSixteenSplats) {
  TestGame survive(Shaft(16));
  survive.Ticks(17);
  EXPECT_EQ(survive.C(0).Y, 15);
  EXPECT_TRUE(survive.C(0).Out);
  EXPECT_EQ(survive.C(0).FallCount, 0);

  TestGame splat(Shaft(17));
  splat.Ticks(18);
  EXPECT_EQ(splat.C(0).Y, 16);
  EXPECT_FALSE(splat.C(0).Out);
  EXPECT_EQ(splat.C(0).Splatted, 2);
  EXPECT_TRUE(splat.host.PlayedSound(109));
  splat.Ticks(2);
  EXPECT_EQ(splat.C(0).Splatted, 0);
}

TEST(Falling, TheDoorSavesAFallOfFifteenButNotSixteen) {
  TestGame saved(Shaft(16, 'D'));
  saved.Ticks(17);
  EXPECT_EQ(saved.g.SavedCount, 1);

  TestGame dead(Shaft(17, 'D'));
  dead.Ticks(18);
  EXPECT_EQ(dead.g.SavedCount, 0);
  EXPECT_GT(dead.C(0).Splatted, 0);
}

}  // namespace
}  // namespace qb
