// The tools at their edges: a jump against a wall or with slow motion running, a climb under a
// ceiling, a staircase the crowd follows, a laser beam leaving the level. Each tool's ordinary
// use is pinned by the golden every-tool trace and the shipped solutions.
#include <gtest/gtest.h>

#include "play/use_tool.h"
#include "support/level_builder.h"

namespace qb {
namespace {

// A level whose leader comes out at (0, y) and walks right, with `stock` tools.
test::TestGame Play(std::vector<std::string> rows, int y, std::array<int16_t, 8> stock,
                    int total = 1, int release = 1) {
  LevelData d = test::MakeLevel(rows, 0, y, total, 0, release, 900);
  d.ToolStock = stock;
  return test::TestGame(d);
}

TEST(Jump, AgainstAWallTwoHighItIsSpentAndWithSlowRunningTheArcIsThreeUpThreeDown) {
  auto wall = Play({"................", "...M............", "...M............", "################"},
                   2, {0, 0, 0, 0, 2, 0, 0, 0});
  wall.Ticks(3);
  wall.Use(ToolJump);
  EXPECT_EQ(wall.C(0).X, 2);
  EXPECT_EQ(wall.g.ToolStock(ToolJump), 1);
  EXPECT_EQ(wall.g.JumpStage, 0);

  auto slow = Play({"................", "................", "................", "................",
                    "################"},
                   3, {0, 0, 0, 0, 1, 1, 0, 0});
  slow.Ticks(2);
  slow.Use(ToolSlow);
  slow.Use(ToolJump);
  slow.Ticks(5);
  EXPECT_EQ(slow.C(0).X, 1 + 6);
  EXPECT_EQ(slow.C(0).Y, 3);
}

TEST(Build, AStaircaseOverAGapThatTheCrowdFollowsToTheDoor) {
  std::vector<std::string> rows(9, std::string(16, '.'));
  rows[7] = "#####~~~########";
  rows[8] = std::string(16, 'M');
  rows[6][15] = 'D';
  auto t = Play(rows, 6, {0, 0, 4, 0, 0, 0, 0, 0}, 3, 2);
  t.Ticks(6);  // the leader (released in the second cycle) at the edge, x=4
  ASSERT_EQ(t.C(0).X, 4);
  for (int step = 0; step < 4; ++step) {
    t.Use(ToolBuild);
    t.Use(ToolBuild);  // a second press builds nothing: the square is filled
    t.Ticks(1);
  }
  EXPECT_EQ(t.g.ToolStock(ToolBuild), 0);
  EXPECT_EQ(t.g.Grid(8, 3), BuiltBlock);
  t.Ticks(40);
  EXPECT_EQ(t.g.LastEnd, LevelEnd::Won);
  EXPECT_EQ(t.g.SavedCount, 3);
}

TEST(Laser, ABeamThatRunsOffTheLevelExplodesNowhere) {
  auto t = Play({"........", "........", "........", "########"}, 2, {0, 0, 0, 0, 0, 0, 0, 1});
  t.Ticks(3);  // leader at x=2, five squares from the right edge
  t.Use(ToolLaser);
  t.Ticks(6);
  EXPECT_EQ(t.g.Lasering, 0);
  EXPECT_EQ(t.g.Bombing, 0);
  for (int x = 0; x < 8; ++x) EXPECT_EQ(t.g.Grid(x, 3), SoftWall);
}

}  // namespace
}  // namespace qb
