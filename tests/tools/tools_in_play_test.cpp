// Each tool doing its work in a level: jump, climb, build, block, bomb, laser.
#include <gtest/gtest.h>

#include "play/use_tool.h"
#include "support/level_builder.h"

namespace qb {
namespace {

using test::MakeLevel;
using test::TestGame;

// A level of width 16: the leader comes out at (0, y) and walks right.
TestGame Play(std::vector<std::string> rows, int y, std::array<int16_t, 8> stock, int total = 2,
              int release = 1) {
  LevelData d = MakeLevel(rows, 0, y, total, 0, release, 900);
  d.ToolStock = stock;
  return TestGame(d);
}

TEST(Jump, OverAGapOfWaterTwoUpTwoDownFourColumnsOn) {
  TestGame t = Play({"................", "................", "................", "#####~~~########",
                     "MMMMMMMMMMMMMMMM"},
                    2, {0, 0, 0, 0, 1, 0, 0, 0}, 1);
  t.Ticks(5);  // at x=4, the edge
  ASSERT_EQ(t.C(0).X, 4);
  t.Use(ToolJump);
  EXPECT_EQ(t.C(0).X, 5);
  EXPECT_EQ(t.C(0).Y, 1);
  EXPECT_EQ(t.g.ui.Label2Caption(ToolJump), "");
  EXPECT_TRUE(t.host.PlayedSound(115));
  t.Ticks(3);
  EXPECT_EQ(t.C(0).X, 8);
  EXPECT_EQ(t.C(0).Y, 2);
  EXPECT_EQ(t.g.JumpStage, 0);
  EXPECT_EQ(t.g.ui.Label1Back(ToolJump), kWhite);
  t.Ticks(1);
  EXPECT_EQ(t.C(0).X, 9);
  EXPECT_TRUE(t.C(0).Out);
}

TEST(Jump, AgainstAWallTwoHighItIsSpentAndTheLeaderStays) {
  TestGame t =
      Play({"................", "...M............", "...M............", "################"}, 2,
           {0, 0, 0, 0, 2, 0, 0, 0}, 1);
  t.Ticks(3);
  t.Use(ToolJump);
  EXPECT_EQ(t.C(0).X, 2);
  EXPECT_EQ(t.g.ToolStock(ToolJump), 1);
  EXPECT_EQ(t.g.JumpStage, 0);
}

TEST(Jump, WithSlowRunningTheArcIsThreeUpThreeDown) {
  TestGame t = Play({"................", "................", "................", "................",
                     "################"},
                    3, {0, 0, 0, 0, 1, 1, 0, 0}, 1);
  t.Ticks(2);
  t.Use(ToolSlow);
  t.Use(ToolJump);
  t.Ticks(5);
  EXPECT_EQ(t.C(0).X, 1 + 6);
  EXPECT_EQ(t.C(0).Y, 3);
}

TEST(Climb, UpAThreeHighWallAndOverTheTop) {
  TestGame t = Play({"............", "............", "......M.....", "......M.....", "......M.....",
                     "MMMMMMMMMMMM"},
                    4, {1, 0, 0, 0, 0, 0, 0, 0}, 1);
  t.Ticks(1);
  t.Use(ToolClimb);
  t.Ticks(5);
  EXPECT_EQ(t.C(0).X, 5);
  EXPECT_EQ(t.g.Climbing, False);
  t.Ticks(1);  // blocked by the wall: the first climbing step happens in the same tick
  EXPECT_EQ(t.C(0).X, 5);
  EXPECT_EQ(t.C(0).Y, 3);
  EXPECT_EQ(t.g.Climbing, True);
  EXPECT_TRUE(t.g.pic.Picture1.At(5, 3).climbing);
  t.Ticks(2);
  EXPECT_EQ(t.C(0).X, 6);
  EXPECT_EQ(t.C(0).Y, 1);
  EXPECT_EQ(t.g.ClimbArmed, False);
  t.Ticks(1);
  EXPECT_EQ(t.C(0).X, 7);
}

TEST(Climb, ACeilingMakesTheLeaderGiveUpFacingBack) {
  TestGame t =
      Play({"............", ".....MM.....", "......M.....", "......M.....", "MMMMMMMMMMMM"}, 3,
           {1, 0, 0, 0, 0, 0, 0, 0}, 1);
  t.Ticks(1);
  t.Use(ToolClimb);
  t.Ticks(7);
  EXPECT_EQ(t.g.ClimbArmed, False);
  EXPECT_EQ(t.C(0).Dir, -1);
}

TEST(Build, AStaircaseOverAGapThatTheCrowdFollows) {
  std::vector<std::string> rows(9, std::string(16, '.'));
  rows[7] = "################";
  rows[7][5] = rows[7][6] = rows[7][7] = '~';
  rows[8] = std::string(16, 'M');
  rows[6][15] = 'D';
  TestGame t = Play(rows, 6, {0, 0, 4, 0, 0, 0, 0, 0}, 3, 2);
  t.Ticks(6);  // the leader (released in the second cycle) at the edge, x=4
  ASSERT_EQ(t.C(0).X, 4);
  for (int step = 0; step < 4; ++step) {
    t.Use(ToolBuild);
    t.Use(ToolBuild);  // a second press builds nothing: the square is filled
    t.Ticks(1);
  }
  EXPECT_EQ(t.g.ToolStock(ToolBuild), 0);
  EXPECT_EQ(t.g.Grid(5, 6), BuiltBlock);
  EXPECT_EQ(t.g.Grid(8, 3), BuiltBlock);
  t.Ticks(40);
  EXPECT_EQ(t.g.LastEnd, LevelEnd::Won);
  EXPECT_EQ(t.g.SavedCount, 3);
}

TEST(Block, RaisesAWallTwoHighThatTurnsTheCrowd) {
  TestGame t =
      Play({"................", "................", "................", "################"}, 2,
           {0, 1, 0, 0, 0, 0, 0, 0}, 3, 3);
  t.Ticks(10);  // leader at x=7
  t.Use(ToolBlock);
  EXPECT_EQ(t.g.Grid(t.C(0).X + 1, 2), BlockSquare);
  EXPECT_EQ(t.g.Grid(t.C(0).X + 1, 1), BlockSquare);
  EXPECT_EQ(t.g.Blocking, 2);
  t.Ticks(1);
  EXPECT_EQ(t.g.Blocking, 0);
  t.Ticks(20);
  for (int i = 1; i < 3; ++i) EXPECT_LT(t.C(i).X, 9) << i;
}

TEST(Bomb, BlowsAHoleThroughASoftFloorButNotMetalAndSparesTheLeader) {
  TestGame t = Play({"................", "................", "................", "####MMMM########",
                     "################", "................", "MMMMMMMMMMMMMMMM"},
                    2, {0, 0, 0, 0, 0, 0, 1, 0}, 2, 4);
  t.Ticks(13);  // the leader at x=9, the second character at x=5
  t.Use(ToolBomb);
  EXPECT_EQ(t.g.ui.Label1Back(ToolBomb), kToolInUse);
  EXPECT_TRUE(t.host.PlayedSound(102));
  t.Ticks(4);
  EXPECT_EQ(t.g.Bombing, 0);
  EXPECT_EQ(t.g.Grid(9, 3), Empty);
  EXPECT_EQ(t.g.Grid(10, 4), Empty);
  EXPECT_EQ(t.g.Grid(7, 3), MetalWall);
  EXPECT_TRUE(t.C(0).Out);
  t.Ticks(3);
  EXPECT_GT(t.C(0).Y, 3);  // falls through the hole
}

TEST(Laser, StopsAtAMetalWallAndExplodesThereBreakingOnlySoftSquares) {
  TestGame t =
      Play({"................", ".........#M#....", ".....#..##M.....", "################"}, 2,
           {0, 0, 0, 0, 0, 0, 0, 1}, 1);
  t.Ticks(3);  // leader at x=2
  t.Use(ToolLaser);
  EXPECT_EQ(t.g.Lasering, 2);
  EXPECT_EQ(t.g.ReplayLog(3), "L");
  t.Ticks(7);  // the beam passes the soft walls and stops at the metal at x=10
  EXPECT_EQ(t.g.LaserHitX, 10);
  EXPECT_EQ(t.g.LaserHitY, 2);
  t.Ticks(5);
  EXPECT_EQ(t.g.Bombing, 0);
  EXPECT_EQ(t.g.Grid(9, 2), Empty);
  EXPECT_EQ(t.g.Grid(8, 2), Empty);
  EXPECT_EQ(t.g.Grid(9, 1), Empty);
  EXPECT_EQ(t.g.Grid(11, 1), Empty);
  EXPECT_EQ(t.g.Grid(10, 2), MetalWall);
  EXPECT_EQ(t.g.Grid(10, 1), MetalWall);
  EXPECT_EQ(t.g.Grid(5, 2), SoftWall);  // passed by the beam, outside the blast
}

TEST(Laser, ABeamThatRunsOffTheLevelExplodesNowhere) {
  TestGame t =
      Play({"........", "........", "........", "########"}, 2, {0, 0, 0, 0, 0, 0, 0, 1}, 1);
  t.Ticks(3);  // leader at x=2, five squares from the right edge
  t.Use(ToolLaser);
  t.Ticks(6);
  EXPECT_EQ(t.g.Lasering, 0);
  EXPECT_EQ(t.g.Bombing, 0);
  for (int x = 0; x < 8; ++x) EXPECT_EQ(t.g.Grid(x, 3), SoftWall);
}

}  // namespace
}  // namespace qb
