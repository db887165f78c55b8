// LoadLevel on hand-built files: missing and refused levels leave the game alone, odd files load.
#include <gtest/gtest.h>

#include "game_compare.h"
#include "level/loader.h"
#include "level_bytes.h"
#include "play/cycle.h"
#include "support/level_builder.h"

namespace qb::test {
namespace {

// A game that has been playing a level for a while: characters out, time counted down.
struct PlayingGame : TestGame {
  PlayingGame() : TestGame(MakeLevel({"..........D", "...........", "###########"}, 0, 1, 5, 2)) {
    Ticks(6);
  }
  LoadResult Load(const std::vector<uint8_t>& bytes) {
    host.files["other.lvl"] = bytes;
    return OpenLevel(g, "other.lvl");
  }
};

TEST(LoadLevel, AMissingLevelShowsTheMessageAndRestoresTheTier) {
  PlayingGame p;
  p.g.CurrentSkill = 2;
  LevelBytes noNumber;
  noNumber.Title = "Nowhere";
  noNumber.Skill = Var::Integer(3);
  noNumber.Number = Var::Empty();
  const Game before = p.g;

  ASSERT_EQ(p.Load(noNumber.Bytes()), LoadResult::Missing);
  EXPECT_EQ(p.host.messages.back(), "Quorbit: This level does not exist!");
  EXPECT_EQ(p.g.CurrentSkill, 2);
  // The title and number just read stay; nothing else changes.
  EXPECT_EQ(p.g.LevelTitle, "Nowhere");
  EXPECT_EQ(p.g.LevelName, "Nowhere");
  EXPECT_EQ(p.g.LevelNumber, 0);
  auto differences = GameDifferences(before, p.g);
  std::erase_if(differences, [](const std::string& f) {
    return f == "LevelTitle" || f == "LevelName" || f == "LevelNumber";
  });
  EXPECT_TRUE(differences.empty()) << ::testing::PrintToString(differences);
}

TEST(LoadLevel, AZeroByteOrAbsentFileIsAMissingLevel) {
  PlayingGame p;
  p.g.CurrentSkill = 1;
  EXPECT_EQ(p.Load({}), LoadResult::Missing);
  EXPECT_EQ(OpenLevel(p.g, "no such file.lvl"), LoadResult::Missing);
  EXPECT_EQ(p.host.messages.size(), 2u);
  EXPECT_EQ(p.host.messages.back(), "Quorbit: This level does not exist!");
  EXPECT_EQ(p.g.CurrentSkill, 1);
  // Whoever started the game learns which file was looked for and why it did not count.
  EXPECT_EQ(p.host.notes, (std::vector<std::string>{"no level in other.lvl: the file is empty",
                                                    "no level in no such file.lvl: no such file"}));
}

TEST(LoadLevel, ARefusedLevelLeavesTheRunningGameExactlyAsItWas) {
  std::vector<std::pair<const char*, std::vector<uint8_t>>> refused;
  LevelBytes kind40;
  kind40.Columns[5] = 40;
  refused.push_back({"kind 40", kind40.Bytes()});
  LevelBytes wide;
  wide.GridWidth = 121;
  refused.push_back({"width 121", wide.Bytes()});
  LevelBytes badTag;
  badTag.TimeLeft = Var{7, Var::Le(0, 8)};
  refused.push_back({"tag 7", badTag.Bytes()});
  const auto full = LevelBytes().Bytes();
  refused.push_back({"ends after the number", {full.begin(), full.begin() + 19}});

  for (const auto& [what, bytes] : refused) {
    SCOPED_TRACE(what);
    PlayingGame p;
    ASSERT_GT(p.g.CharactersReleased, 0);
    const Game before = p.g;
    EXPECT_EQ(p.Load(bytes), LoadResult::Unsupported);
    const auto differences = GameDifferences(before, p.g);
    EXPECT_TRUE(differences.empty()) << ::testing::PrintToString(differences);
    ASSERT_FALSE(p.host.messages.empty());
    EXPECT_NE(p.host.messages.back().find("other.lvl"), std::string::npos);
    EXPECT_NE(p.host.messages.back().find("cannot be played"), std::string::npos);
  }
}

TEST(LoadLevel, ALevelNumberStoredAsLongOrStringLoadsLikeAnInteger) {
  const auto loaded = [](const Var& number) {
    PlayingGame p;
    LevelBytes b;
    b.Number = number;
    EXPECT_EQ(p.Load(b.Bytes()), LoadResult::Loaded);
    return p.g;
  };
  const Game asInteger = loaded(Var::Integer(7));
  EXPECT_EQ(asInteger.ui.Caption, "Quorbit 2 - Intermediate, Level 7");
  for (const Var& other : {Var::Long(7), Var::String("7"), Var::Double(7.0)}) {
    const auto differences = GameDifferences(asInteger, loaded(other));
    EXPECT_TRUE(differences.empty()) << ::testing::PrintToString(differences);
  }
}

TEST(LoadLevel, AFileCutInsideItsGridStillLoads) {
  LevelBytes b;
  b.Columns = {2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2};
  const auto full = b.Bytes();
  PlayingGame p;
  const std::size_t cut = b.GridOffset() + 7 * 2;  // columns 0 and 1, then one square
  ASSERT_EQ(p.Load({full.begin(), full.begin() + static_cast<long>(cut)}), LoadResult::Loaded);
  EXPECT_EQ(p.g.GridWidth, 4);
  EXPECT_EQ(p.g.Grid(2, 0), SoftWall);
  EXPECT_EQ(p.g.Grid(2, 1), Empty);
  EXPECT_EQ(p.g.Grid(3, 2), Empty);
  EXPECT_EQ(p.g.ui.Caption, "Quorbit 2 - Intermediate, Level 7");
  EXPECT_TRUE(p.g.ui.Timer1Enabled);
}

TEST(LoadLevel, MarkerSquaresBecomeEmptyAndStayOffTheMap) {
  LevelBytes b;
  // Column 0: marker 1 over a soft wall; column 1: marker 12 over a soft wall.
  b.Columns = {1, 0, 2, 12, 0, 2, 0, 0, 2, 0, 16, 2};
  PlayingGame p;
  ASSERT_EQ(p.Load(b.Bytes()), LoadResult::Loaded);
  EXPECT_EQ(p.g.Grid(0, 0), Empty);
  EXPECT_EQ(p.g.Grid(1, 0), Empty);
  const Colour blank = p.g.pic.Map.Dot(2, 0);
  EXPECT_EQ(p.g.pic.Map.Dot(0, 0), blank);
  EXPECT_EQ(p.g.pic.Map.Dot(1, 0), blank);
  EXPECT_EQ(p.g.pic.Backing.Dot(0, 0), blank);
  EXPECT_EQ(p.g.pic.Map.Dot(0, 2), p.g.SquareColour(SoftWall));
  EXPECT_NE(blank, p.g.SquareColour(SoftWall));
}

TEST(LoadLevel, AFullSizeLevelFillsTheWholeGridAndMap) {
  LevelBytes b;
  b.GridWidth = 120;
  b.GridHeight = Var::Long(80);
  b.Columns.assign(120 * 80, 0);
  for (int x = 0; x < 120; ++x) b.Columns[static_cast<std::size_t>(x * 80 + 79)] = MetalWall;
  b.Columns[119 * 80 + 78] = ExitDoor;
  PlayingGame p;
  ASSERT_EQ(p.Load(b.Bytes()), LoadResult::Loaded);
  EXPECT_EQ(p.g.Grid(119, 79), MetalWall);
  EXPECT_EQ(p.g.Grid(119, 78), ExitDoor);
  EXPECT_EQ(p.g.Grid(0, 79), MetalWall);
  EXPECT_DOUBLE_EQ(p.g.ui.MapWidthTwips, 3135);
  EXPECT_DOUBLE_EQ(p.g.ui.MapHeightTwips, 1935);
  EXPECT_EQ(p.g.pic.Map.Dot(119, 79), p.g.SquareColour(MetalWall));
}

}  // namespace
}  // namespace qb::test
