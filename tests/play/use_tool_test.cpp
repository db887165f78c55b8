// Tool use: what is refused, what is spent, what is recorded, and changing the leader.
#include "play/use_tool.h"

#include <gtest/gtest.h>

#include "play/level_commands.h"
#include "support/level_builder.h"

namespace qb {
namespace {

using test::MakeLevel;
using test::TestGame;

LevelData Floor(std::array<int16_t, 8> stock) {
  LevelData d = MakeLevel({std::string(40, '.'), std::string(40, '.'), std::string(40, '.'),
                           std::string(40, '#'), std::string(40, '#')},
                          0, 2, 3, 0, 1, 900);
  d.ToolStock = stock;
  return d;
}

TEST(UseTool, AnEmptyStockDoesNothingNotEvenUnpauseAndARunningToolIsNotSpentTwice) {
  TestGame t(Floor({2, 0, 1, 1, 1, 1, 1, 1}));
  t.Ticks(2);
  LevelCmd_Click(t.g, 0);  // pause
  t.Use(ToolBlock);
  EXPECT_FALSE(t.g.ui.Timer1Enabled);
  EXPECT_EQ(t.g.Blocking, 0);
  t.Use(ToolClimb);
  EXPECT_TRUE(t.g.ui.Timer1Enabled);  // a usable tool lifts the pause first
  t.Use(ToolClimb);                   // already armed: ignored, costs nothing
  EXPECT_EQ(t.g.ToolStock(ToolClimb), 1);
  t.Use(ToolSlow);
  t.Use(ToolSlow);  // still running: ignored
  EXPECT_EQ(t.g.ToolStock(ToolSlow), 0);
  EXPECT_EQ(t.g.ReplayLog(2), "CR");
}

TEST(UseTool, InTheAirOnlyTheBombIsAcceptedAndDuringAJumpOnlyClimb) {
  LevelData d = MakeLevel({"..........", "..........", "..........", "..........", "#########."}, 1,
                          0, 2, 0, 1, 900);
  d.ToolStock = {0, 1, 1, 0, 1, 0, 1, 1};
  TestGame air(d);
  air.Ticks(2);  // the leader is falling
  ASSERT_NE(air.C(0).FallCount, 0);
  for (int tool : {ToolBlock, ToolBuild, ToolJump, ToolLaser}) air.Use(tool);
  EXPECT_EQ(air.g.ReplayLog(2), "");
  air.Use(ToolBomb);
  EXPECT_EQ(air.g.ReplayLog(2), "X");

  TestGame jump(Floor({1, 1, 1, 1, 1, 1, 1, 1}));
  jump.Ticks(2);
  jump.Use(ToolJump);
  ASSERT_EQ(jump.g.JumpStage, 2);
  for (int tool : {ToolBlock, ToolBuild, ToolChange, ToolSlow, ToolBomb, ToolLaser, ToolClimb})
    jump.Use(tool);
  EXPECT_EQ(jump.g.ReplayLog(2), "JC");
  EXPECT_EQ(jump.g.ToolStock(ToolLaser), 1);
}

TEST(UseTool, AfterTheLeaderIsLostOnlyChangeWorksAndFindsTheNextCharacter) {
  LevelData d = Floor({1, 1, 1, 2, 1, 1, 1, 1});
  d.Squares[static_cast<std::size_t>(6 + 40 * 3)] = Water;  // the leader walks into water at x=6
  d.Squares[static_cast<std::size_t>(6 + 40 * 4)] = Water;
  TestGame t(d);
  t.Ticks(8);
  ASSERT_FALSE(t.C(0).Out);
  for (int tool = 0; tool < 8; ++tool)
    if (tool != ToolChange) t.Use(tool);
  EXPECT_EQ(t.g.ReplayLog(t.g.ReplayTick), "");
  t.Use(ToolChange);
  EXPECT_EQ(t.g.Leader, 1);
  EXPECT_EQ(t.g.ReplayLog(t.g.ReplayTick), "D");
}

TEST(ChangeLeader, ShowChangeMovesTheViewToTheNewLeaderWithinTheScrollLimits) {
  std::vector<std::string> rows(60, std::string(100, '.'));
  rows[59] = std::string(100, 'M');
  LevelData d = MakeLevel(rows, 50, 58, 2, 0, 1, 900);
  d.Slots[1] = {-1, 0, 0, 70, 58, 0, 0, 0, 0};
  d.ToolStock[ToolChange] = 3;
  TestGame t(d);
  t.g.ui.OptionsChecked(OptShowChange) = true;
  t.Ticks(2);  // char 0 at x=51, char 1 released at x=70
  t.Use(ToolChange);
  EXPECT_EQ(t.g.ViewX, 70 - 16);
  EXPECT_EQ(t.g.ViewY, 20);  // 58 - 16 = 42 is past the bottom limit of 60 - 40
  t.g.ui.OptionsChecked(OptShowChange) = false;
  t.Use(ToolChange);
  EXPECT_EQ(t.g.ViewX, 54);
}

}  // namespace
}  // namespace qb
