// A refused load never loses the running game: every kind of bad file leaves the level, its view
// and its counters as they were, says why, and the game plays on as if nothing had been tried.
// A level that does load is set up from the file alone.
#include <gtest/gtest.h>

#include <cmath>

#include "level/loader.h"
#include "play/commands.h"
#include "play/cycle.h"
#include "support/game_compare.h"
#include "support/level_builder.h"
#include "support/level_bytes.h"

namespace qb::test {
namespace {

LevelData WideLevel() {
  const std::string air(60, '.');
  std::string doorRow = air;
  doorRow[55] = 'D';
  LevelData d = MakeLevel({air, air, air, air, doorRow, std::string(60, '#')}, 2, 4, 6, 3, 2);
  d.ToolStock[ToolBlock] = 3;
  d.ToolStock[ToolBuild] = 2;
  return d;
}

// A level well under way: characters out, a block placed, the view scrolled right.
struct RunningGame : TestGame {
  RunningGame() : TestGame(WideLevel()) {
    Ticks(7);
    ToolButtonDown(g, ToolBlock);
    ToolButtonUp(g, ToolBlock);
    for (int i = 0; i < 3; ++i) Form_KeyUp(g, KeyRight);  // the arrow keys scroll on release
    Ticks(3);
    EXPECT_EQ(g.ToolStock(ToolBlock), 2);  // under way, so a load that resets something shows
    EXPECT_EQ(g.ViewX, 3);
  }
  LoadResult Load(const std::optional<std::vector<uint8_t>>& bytes) {
    if (bytes) host.files["bad.lvl"] = *bytes;
    return OpenLevel(g, "bad.lvl");
  }
};

std::vector<uint8_t> Cut(const std::vector<uint8_t>& bytes, std::size_t length) {
  return {bytes.begin(), bytes.begin() + static_cast<long>(length)};
}

struct Refused {
  std::vector<uint8_t> bytes;
  std::string reason;  // part of the message that tells the player why
};

// Every way a file can make the game refuse it.
std::vector<Refused> UnsupportedFiles() {
  std::vector<Refused> files;
  const auto add = [&](auto change, const std::string& reason) {
    LevelBytes b;
    change(b);
    files.push_back({b.Bytes(), reason});
  };
  files.push_back({{0xFE, 0xFF, 'a', 'b'}, "title length is negative"});
  add([](LevelBytes& b) { b.Skill = Var{7, Var::Le(1, 2)}; }, "tag 7");
  add([](LevelBytes& b) { b.Number = Var::String("seven"); }, "level number");
  add([](LevelBytes& b) { b.Number = Var{8, Var::Le(0xFFFF, 2)}; }, "level number");  // length < 0
  add([](LevelBytes& b) { b.TimeLeft = Var::Double(std::nan("")); }, "time");
  add([](LevelBytes& b) { b.GridWidth = 121; }, "grid width 121");
  add([](LevelBytes& b) { b.GridWidth = 0; }, "grid width 0");
  add([](LevelBytes& b) { b.Skill = Var::Integer(4); }, "tier 4 is not 0 to 3");
  add([](LevelBytes& b) { b.CharactersTotal = Var::Integer(-1); }, "character count -1");
  add([](LevelBytes& b) { b.Columns[0] = -1; }, "square (0, 0) has kind -1");
  add([](LevelBytes& b) { b.GridHeight = Var::Integer(81); }, "grid height 81");
  add([](LevelBytes& b) { b.CharactersTotal = Var::Integer(101); }, "character count 101");
  add([](LevelBytes& b) { b.Columns[4] = 18; }, "square (1, 1) has kind 18");
  add([](LevelBytes& b) { b.Slots[3].TrapX = Var::Long(70000); }, "16-bit");
  add([](LevelBytes& b) { b.Slots[0].EntranceX = Var::Integer(4); }, "entrance 0 at (4, 1)");
  add(
      [](LevelBytes& b) {
        b.Slots[1].TrapActive = Var::Boolean(true);
        b.Slots[1].TrapY = 3;
      },
      "trap 1");
  add([](LevelBytes& b) { b.StartViewX = Var::Integer(81); }, "start view");
  files.push_back({Cut(LevelBytes().Bytes(), 2 + 9 + 4 + 4),
                   "the file ends early, after 19 bytes, in the character count, before the grid"});
  return files;
}

// No level number: "This level does not exist!". The files are of tier 3, which the game must
// not take on.
std::vector<std::pair<std::string, std::optional<std::vector<uint8_t>>>> MissingFiles() {
  LevelBytes tier3;
  tier3.Skill = Var::Integer(3);
  const auto good = tier3.Bytes();
  LevelBytes zero = tier3;
  zero.Number = Var::Integer(0);
  LevelBytes empty = tier3;
  empty.Number = Var::Empty();
  return {{"no such file", std::nullopt},
          {"a zero-byte file", std::vector<uint8_t>{}},
          {"cut inside the title", Cut(good, 6)},
          {"cut inside the level number", Cut(good, 2 + 9 + 4 + 3)},
          {"level number 0", zero.Bytes()},
          {"level number Empty", empty.Bytes()}};
}

TEST(LoadKeepsGame, AnUnsupportedFileChangesNothingSaysWhyAndTheGamePlaysOn) {
  for (const auto& [bytes, reason] : UnsupportedFiles()) {
    SCOPED_TRACE(reason);
    RunningGame p;
    Game untouched = p.g;
    const std::size_t messages = p.host.messages.size();
    ASSERT_EQ(p.Load(bytes), LoadResult::Unsupported);
    EXPECT_EQ(GameDifferences(p.g, untouched), "");
    ASSERT_EQ(p.host.messages.size(), messages + 1);
    const std::string& message = p.host.messages.back();
    EXPECT_EQ(message.rfind("Quorbit: The level file bad.lvl cannot be played: ", 0), 0u)
        << message;
    EXPECT_NE(message.find(reason), std::string::npos) << message;

    const int16_t tick = p.g.ReplayTick;
    p.Ticks(12);
    for (int i = 0; i < 12; ++i) Timer1_Timer(untouched);
    EXPECT_EQ(p.g.ReplayTick, tick + 12);
    EXPECT_EQ(GameDifferences(p.g, untouched), "");
  }
}

// The one intended change: a missing level keeps the title and number just read (LevelTitle,
// LevelName, LevelNumber). LoadLevel never touches LevelFile, which its caller sets. Everything
// else is compared, the tier too.
TEST(LoadKeepsGame, AMissingLevelKeepsEverythingButTheTitleAndNumberJustRead) {
  for (const auto& [what, bytes] : MissingFiles()) {
    SCOPED_TRACE(what);
    RunningGame p;
    Game untouched = p.g;
    ASSERT_EQ(p.Load(bytes), LoadResult::Missing);
    EXPECT_EQ(p.host.messages.back(), "Quorbit: This level does not exist!");
    // Whoever started the game learns which file was looked for and why it did not count.
    ASSERT_FALSE(p.host.notes.empty());
    EXPECT_EQ(p.host.notes.back().rfind("no level in bad.lvl: ", 0), 0u) << p.host.notes.back();
    EXPECT_EQ(p.g.LevelNumber, 0);
    EXPECT_EQ(p.g.LevelFile, untouched.LevelFile);
    untouched.LevelTitle = p.g.LevelTitle;
    untouched.LevelName = p.g.LevelName;
    untouched.LevelNumber = p.g.LevelNumber;
    EXPECT_EQ(GameDifferences(p.g, untouched), "");

    const int32_t time = p.g.TimeLeft;
    p.Ticks(12);
    for (int i = 0; i < 12; ++i) Timer1_Timer(untouched);
    EXPECT_LT(p.g.TimeLeft, time);
    EXPECT_EQ(GameDifferences(p.g, untouched), "");
  }
}

// Marker squares are for the level's maker: the game plays them as empty squares and draws them
// blank on the overview map.
TEST(LoadLevel, MarkerSquaresBecomeEmptyAndStayOffTheMap) {
  LevelBytes b;
  b.Columns = {1, 0, 2, 12, 0, 2, 0, 0, 2, 0, 16, 2};  // markers 1 and 12 over soft walls
  RunningGame p;
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

// The largest level fills the whole grid and the whole overview map, to its last square.
TEST(LoadLevel, AFullSizeLevelFillsTheWholeGridAndMap) {
  LevelBytes b;
  b.GridWidth = 120;
  b.GridHeight = Var::Long(80);
  b.Columns.assign(120 * 80, 0);
  for (int x = 0; x < 120; ++x) b.Columns[static_cast<std::size_t>(x * 80 + 79)] = MetalWall;
  b.Columns[119 * 80 + 78] = ExitDoor;
  RunningGame p;
  ASSERT_EQ(p.Load(b.Bytes()), LoadResult::Loaded);
  EXPECT_EQ(p.g.Grid(119, 79), MetalWall);
  EXPECT_EQ(p.g.Grid(119, 78), ExitDoor);
  EXPECT_DOUBLE_EQ(p.g.ui.MapWidthTwips, 3135);
  EXPECT_EQ(p.g.pic.Map.Dot(119, 79), p.g.SquareColour(MetalWall));
}

}  // namespace
}  // namespace qb::test
