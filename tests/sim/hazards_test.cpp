// Electric walls, water and lava, and the edge cases of teleports and traps, cycle by cycle. The
// common paths of crumbling walls, traps and teleport pairs are pinned by the golden hazard walk.
#include <gtest/gtest.h>

#include "support/level_builder.h"

namespace qb {
namespace {

using test::MakeLevel;
using test::TestGame;

TEST(Electric, TouchingFromTheSideFromAboveOrDiagonallyShocksButNotFromBelow) {
  for (const auto& rows : std::vector<std::vector<std::string>>{
           {"....", "..Z.", "####"},     // ahead
           {"..Z.", "..M.", "####"},     // diagonally up ahead, over a wall
           {"....", "....", "#Z##"}}) {  // below
    TestGame t(MakeLevel(rows, 0, 1, 1, 0));
    t.Ticks(3);
    EXPECT_FALSE(t.C(0).Out);
    EXPECT_GT(t.C(0).Shocked, 0) << rows[0] << "/" << rows[1] << "/" << rows[2];
    EXPECT_TRUE(t.host.PlayedSound(101));
    t.Ticks(4);
    EXPECT_EQ(t.C(0).Shocked, 0);
  }
  TestGame overhead(MakeLevel({"ZZZZ", "....", "####"}, 0, 1, 1, 0));
  overhead.Ticks(3);
  EXPECT_TRUE(overhead.C(0).Out);
  EXPECT_EQ(overhead.C(0).X, 2);
}

TEST(Liquids, WaterAheadIsSteppedOntoAndSplashesWithItsSoundLavaWithAnother) {
  for (char liquid : {'~', '^'}) {
    std::string row = "#####";
    row[3] = liquid;
    TestGame t(MakeLevel({".....", ".....", row}, 0, 1, 1, 0));
    t.Ticks(5);  // walks along the floor into the liquid at x=3
    EXPECT_FALSE(t.C(0).Out) << liquid;
    EXPECT_GT(t.C(0).Splashed, 0);
    EXPECT_TRUE(t.host.PlayedSound(liquid == '~' ? 112 : 106));
    EXPECT_EQ(t.g.SplashColour(0), t.g.SquareColour(liquid == '~' ? Water : Lava));
  }
  TestGame ahead(MakeLevel({".....", "..~..", "#####"}, 0, 1, 1, 0));
  ahead.Ticks(3);  // at x=1, water ahead: steps up onto (2,0)
  EXPECT_EQ(ahead.C(0).X, 2);
  EXPECT_EQ(ahead.C(0).Y, 0);
  ahead.Ticks(1);
  EXPECT_GT(ahead.C(0).Splashed, 0);
  TestGame roofed(MakeLevel({"..M..", "..~..", "#####"}, 0, 1, 1, 0));
  roofed.Ticks(3);
  EXPECT_TRUE(roofed.C(0).Out);
  EXPECT_EQ(roofed.C(0).Dir, -1);
}

TEST(Teleports, AnUndefinedPartnerStillSendsToItsCoordinates) {
  LevelData d = MakeLevel({"..........", "..T....T..", "##########"}, 0, 1, 1, 0, 1, 900);
  d.Slots[2] = {0, 0, -1, 0, 0, 0, 0, 2, 1};
  d.Slots[3] = {0, 0, 0, 0, 0, 0, 0, 7, 1};  // not active
  TestGame t(d);
  t.Ticks(6);
  EXPECT_EQ(t.C(0).X, 8);
}

TEST(Traps, TwoCharactersOnTheTrapInOneTickOnlyTheLowerIndexIsCaught) {
  LevelData d = MakeLevel({"..........", "..........", "##########"}, 2, 1, 2, 0, 1);
  d.Slots[1].TrapActive = -1;
  d.Slots[1].TrapX = 4;
  d.Slots[1].TrapY = 1;
  d.Slots[2].EntranceActive = -1;  // the second comes out one square ahead, one cycle later
  d.Slots[2].EntranceX = 3;
  d.Slots[2].EntranceY = 1;
  TestGame t(d);
  t.Ticks(3);  // both step onto the trap at (4,1) in cycle 2
  EXPECT_EQ(t.C(1).X, 4);
  EXPECT_FALSE(t.C(0).Out);
  EXPECT_GT(t.C(0).Trapped, 0);
  EXPECT_TRUE(t.C(1).Out);
}

}  // namespace
}  // namespace qb
