// Checking levels for what makes them unplayable, and the summary table of levels.
#include "leveltext/level_check.h"

#include <gtest/gtest.h>

#include <functional>

#include "leveltext/level_table.h"
#include "leveltext/level_text.h"

namespace qb::test {
namespace {

using leveltext::CheckLevelBytes;
using leveltext::CheckLevelText;
using leveltext::SanityProblems;

std::string Joined(const std::vector<std::string>& v) {
  std::string s;
  for (const auto& x : v) s += x + "\n";
  return s;
}

std::string Joined(const leveltext::CheckResult& r) {
  std::string s;
  for (const auto& d : r.diagnostics) s += d.message + "\n";
  return s;
}

// A level of `w` by `h` squares with an entrance and a door, viewed from (vx, vy).
LevelData Level(int w, int h, int vx = 0, int vy = 0) {
  LevelData d;
  d.Number = 1;
  d.CharactersTotal = 5;
  d.CharactersNeeded = 5;
  d.GridWidth = static_cast<int16_t>(w);
  d.GridHeight = h;
  d.StartViewX = vx;
  d.StartViewY = static_cast<int16_t>(vy);
  d.Squares.assign(static_cast<std::size_t>(w * h), 0);
  d.Square(w - 1, h - 1) = 16;
  d.Slots[5].EntranceActive = -1;
  return d;
}

TEST(LevelCheck, APlayableLevelHasNoProblems) {
  EXPECT_TRUE(SanityProblems(Level(60, 50, 20, 10)).empty());
  EXPECT_TRUE(SanityProblems(Level(120, 80, 80, 40)).empty());
  EXPECT_TRUE(CheckLevelBytes(WriteLevel(Level(60, 50, 20, 10))).diagnostics.empty());
}

TEST(LevelCheck, EachSanityRuleIsReported) {
  LevelData noEntrance = Level(40, 40);
  noEntrance.Slots[5].EntranceActive = 0;
  noEntrance.Slots[0].TrapActive = -1;  // an active trap is no entrance
  EXPECT_NE(Joined(SanityProblems(noEntrance)).find("no active entrance"), std::string::npos);

  LevelData noDoor = Level(40, 40);
  noDoor.Square(39, 39) = 17;  // a teleport square is no door
  EXPECT_NE(Joined(SanityProblems(noDoor)).find("no exit door"), std::string::npos);

  LevelData tooMany = Level(40, 40);
  tooMany.CharactersNeeded = 6;
  EXPECT_NE(Joined(SanityProblems(tooMany)).find("needed (6) is more than characters (5)"),
            std::string::npos);
  EXPECT_TRUE(SanityProblems(tooMany, false).empty());

  // The view is 40 squares wide: a 60 by 50 level scrolls to (20, 10) at most; a level smaller
  // than the view does not scroll at all.
  for (const auto& [w, h, vx, vy] : {std::array{60, 50, 21, 0}, std::array{60, 50, 0, 11},
                                     std::array{30, 30, 1, 0}, std::array{40, 20, 0, 1}}) {
    SCOPED_TRACE(::testing::Message() << w << "x" << h << " view " << vx << "," << vy);
    const auto problems = SanityProblems(Level(w, h, vx, vy));
    ASSERT_EQ(problems.size(), 1u) << Joined(problems);
    EXPECT_NE(problems[0].find("lies beyond the level"), std::string::npos);
  }
}

// A read level holding a value the text form cannot hold gets a warning in the very words that
// decompile refuses it with.
TEST(LevelCheck, ValuesOutsideTheTextFormAreWarnedOfInDecompilesWords) {
  const std::function<void(LevelData&)> changes[] = {
      [](LevelData& d) { d.CharactersNeeded = -5; }, [](LevelData& d) { d.TimeLeft = -100; },
      [](LevelData& d) { d.ToolStock[3] = -1; },     [](LevelData& d) { d.ReleaseInterval = -1; },
      [](LevelData& d) { d.Number = -3; },           [](LevelData& d) { d.Number = 2147483647; }};
  for (const auto& change : changes) {
    LevelData d = Level(40, 40);
    change(d);
    const auto checked = CheckLevelBytes(WriteLevel(d));
    const auto decompiled = leveltext::ParseLevelText(leveltext::PrintLevelText(d));
    ASSERT_FALSE(decompiled.ok());
    SCOPED_TRACE(decompiled.diagnostics[0].message);
    ASSERT_EQ(checked.diagnostics.size(), 1u) << Joined(checked);
    EXPECT_TRUE(checked.diagnostics[0].warning);
    EXPECT_EQ(checked.diagnostics[0].message, decompiled.diagnostics[0].message);
  }
}

TEST(LevelCheck, TextLevelsAreCheckedWithTheirLines) {
  const std::string text =
      "title: T\ntier: 0\nnumber: 1\ncharacters: 2\nneeded: 3\ntime: 5\nrelease: 1\n"
      "grid:\n....\n####\n";
  const auto r = CheckLevelText(text);
  EXPECT_TRUE(r.loaded);
  ASSERT_EQ(r.diagnostics.size(), 3u) << Joined(r);
  EXPECT_EQ(r.diagnostics[0].line, 5);  // needed is more than characters
  EXPECT_NE(Joined(r).find("no active entrance"), std::string::npos);
  EXPECT_NE(Joined(r).find("no exit door"), std::string::npos);

  const auto bad = CheckLevelText("title: T\ngrid:\n..Q\n");
  EXPECT_FALSE(bad.loaded);
  EXPECT_EQ(bad.diagnostics.at(0).line, 3);
}

TEST(LevelTable, RowsSumUpStockAndElements) {
  const auto parsed = leveltext::ParseLevelText(
      "title: Pipes | Drains\ntier: Expert\nnumber: 4\ncharacters: 20\nneeded: 10\n"
      "time: 250\nrelease: 6\ntools: jump=1 build=2\nentrance 0: 0 0\nentrance 2: 1 0\n"
      "trap 1: 2 0\nteleport 0: 3 0\nteleport 1: 4 0\nentrance 4: 4 1 inactive\ngrid:\n"
      ".!1..T\n~~~~MD\n");
  ASSERT_TRUE(parsed.ok());
  const LevelData& d = parsed.data;
  EXPECT_EQ(leveltext::StockSummary(d), "build 2, jump 1");
  EXPECT_EQ(leveltext::ElementSummary(d),
            "MetalWall, Water, ExitDoor, Teleport; 2 entrances, 1 trap, 2 teleports");
  EXPECT_NE(leveltext::TableRow(d).find("| Pipes \\| Drains | 6x2 |"), std::string::npos);
}

}  // namespace
}  // namespace qb::test
