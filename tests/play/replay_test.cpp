// Replays of the previous attempt, replay files, and taking over from a replay.
#include "play/replay.h"

#include <gtest/gtest.h>

#include "play/commands.h"
#include "play/level_commands.h"
#include "play/use_tool.h"
#include "support/level_builder.h"

namespace qb {
namespace {

using test::MakeLevel;
using test::TestGame;

LevelData Field() {
  LevelData d = MakeLevel({std::string(40, '.'), std::string(40, '.'), std::string(40, '.'),
                           "#####~~~############################D###", std::string(40, 'M')},
                          0, 2, 4, 4, 3, 900);
  d.ToolStock = {0, 0, 3, 2, 2, 1, 0, 0};
  return d;
}

std::vector<CharRecord> Chars(const Game& g) {
  std::vector<CharRecord> out;
  for (int i = 0; i < g.CharactersTotal; ++i) out.push_back(g.Chars(i));
  return out;
}

TEST(Replay, ARestartReplaysThePreviousAttemptExactlyThenHandsOver) {
  TestGame t(Field());
  t.Ticks(7);
  t.Use(ToolBuild);
  t.Ticks(3);
  t.Use(ToolSlow);
  t.Use(ToolChange);
  t.Ticks(9);
  const auto before = Chars(t.g);
  const int stock = t.g.ToolStock(ToolBuild);
  Form_KeyDown(t.g, KeyEscape);
  Form_KeyUp(t.g, KeyEscape);  // restart: this attempt becomes the recording
  EXPECT_EQ(t.g.ReplayLog(19), "E");
  EXPECT_EQ(t.g.ReplayPlaying, True);
  t.Ticks(19);
  EXPECT_EQ(Chars(t.g), before);
  EXPECT_EQ(t.g.ToolStock(ToolBuild), stock);
  t.Ticks(1);  // the "E": the player has the game from here
  EXPECT_EQ(t.g.ReplayPlaying, False);
  EXPECT_EQ(t.g.ReplayLog(10), "RD");  // re-recorded as it was replayed
}

TEST(Replay, PressingAToolDuringAReplayTakesOverAndDropsTheRest) {
  TestGame t(Field());
  t.Ticks(7);
  t.Use(ToolBuild);
  t.Ticks(10);
  t.Use(ToolJump);
  t.Ticks(2);
  LevelCmd_Click(t.g, 3);
  t.Ticks(12);
  ToolButtonDown(t.g, ToolChange);
  EXPECT_EQ(t.g.ReplayPlaying, False);
  EXPECT_EQ(t.g.ReplayLog(12), "D");
  EXPECT_EQ(t.g.ReplayLog(17), "");  // the jump of the old attempt is gone
  t.Ticks(10);
  EXPECT_EQ(t.g.ToolStock(ToolJump), 2);
}

TEST(ReplayFile, ParsesCyclesJoinsLinesAndNamesTheBadLine) {
  const ReplayFile ok = ParseReplay("# a comment\n\n3 B\n3 J\n2000 L\r\n");
  EXPECT_TRUE(ok.error.empty());
  EXPECT_EQ(ok.slots[3], "BJ");
  EXPECT_EQ(ok.slots[2000], "L");
  EXPECT_EQ(ParseReplay("1 B\n2001 B\n").error, "line 2: cycle 2001 is not 0 to 2000");
  EXPECT_EQ(ParseReplay("1 Q\n").error, "line 1: \"Q\" is not a replay letter (C K B D J R X L E)");
  EXPECT_EQ(ParseReplay("99999999999 B\n").error, "line 1: cycle 99999999999 is not 0 to 2000");
  // Lines end in LF, CRLF or CR alone; a CR-only file is not one long comment.
  const ReplayFile mac = ParseReplay("# old editor\r3 B\r\r4 J\r\n5 X");
  EXPECT_TRUE(mac.error.empty()) << mac.error;
  EXPECT_EQ(mac.slots[3] + mac.slots[4] + mac.slots[5], "BJX");
  EXPECT_EQ(ParseReplay("1 B\r2 Q\r").error.rfind("line 2:", 0), 0u);
}

}  // namespace
}  // namespace qb
