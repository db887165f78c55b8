// A refused load never loses the running game: every kind of bad file leaves the level, its view
// and its counters as they were, and the game plays on as if nothing had been tried.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "cli/level_bytes.h"
#include "level/loader.h"
#include "play/commands.h"
#include "play/cycle.h"
#include "support/level_builder.h"

namespace qb::test {
namespace {

// The parts of two games that differ, by name; empty when they are the same.
std::string Differences(const Game& a, const Game& b) {
  std::string out;
  if (!(static_cast<const GameState&>(a) == static_cast<const GameState&>(b))) out += " state";
  if (!(a.ui == b.ui)) out += " controls";
  if (!(a.pic == b.pic)) out += " pictures";
  if (a.LastEnd != b.LastEnd) out += " level end";
  return out;
}

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
  }
  LoadResult Load(const std::optional<std::vector<uint8_t>>& bytes) {
    if (bytes) host.files["bad.lvl"] = *bytes;
    return OpenLevel(g, "bad.lvl");
  }
};

std::vector<uint8_t> Cut(const std::vector<uint8_t>& bytes, std::size_t length) {
  return {bytes.begin(), bytes.begin() + static_cast<long>(length)};
}

// Every way a file can make the game refuse it.
std::vector<std::pair<std::string, std::vector<uint8_t>>> UnsupportedFiles() {
  std::vector<std::pair<std::string, std::vector<uint8_t>>> files;
  const auto add = [&](const std::string& what, auto change) {
    LevelBytes b;
    change(b);
    files.push_back({what, b.Bytes()});
  };
  files.push_back({"negative title length", {0xFE, 0xFF, 'a', 'b'}});
  add("a variant tag the game does not read", [](LevelBytes& b) {
    b.Skill = Var{7, Var::Le(1, 2)};
  });
  add("a level number that is not a number",
      [](LevelBytes& b) { b.Number = Var::String("seven"); });
  add("a string of negative length", [](LevelBytes& b) { b.Number = Var{8, Var::Le(0xFFFF, 2)}; });
  add("a time that is not finite",
      [](LevelBytes& b) { b.TimeLeft = Var::Double(std::numeric_limits<double>::quiet_NaN()); });
  add("a count out of range", [](LevelBytes& b) { b.CharactersTotal = Var::Double(1e12); });
  add("tier 4", [](LevelBytes& b) { b.Skill = Var::Integer(4); });
  add("grid width 0", [](LevelBytes& b) { b.GridWidth = 0; });
  add("grid width 121", [](LevelBytes& b) { b.GridWidth = 121; });
  add("grid height 81", [](LevelBytes& b) { b.GridHeight = Var::Integer(81); });
  add("101 characters", [](LevelBytes& b) { b.CharactersTotal = Var::Integer(101); });
  add("square kind 18", [](LevelBytes& b) { b.Columns[4] = 18; });
  add("square kind -1", [](LevelBytes& b) { b.Columns[4] = -1; });
  add("a column that is not 16-bit", [](LevelBytes& b) { b.Slots[3].TrapX = Var::Long(70000); });
  add("entrance outside", [](LevelBytes& b) { b.Slots[0].EntranceX = Var::Integer(4); });
  add("trap outside", [](LevelBytes& b) {
    b.Slots[1].TrapActive = Var::Boolean(true);
    b.Slots[1].TrapY = 3;
  });
  add("teleport outside", [](LevelBytes& b) {
    b.Slots[2].TeleportActive = -1;
    b.Slots[2].TeleportX = Var::Integer(-1);
  });
  add("start view past the grid", [](LevelBytes& b) { b.StartViewX = Var::Integer(81); });
  const auto good = LevelBytes().Bytes();
  files.push_back({"cut right after the level number", Cut(good, 2 + 9 + 4 + 4)});
  return files;
}

// The level number is missing: "This level does not exist!"
std::vector<std::pair<std::string, std::optional<std::vector<uint8_t>>>> MissingFiles() {
  const auto good = LevelBytes().Bytes();
  LevelBytes zero;
  zero.Number = Var::Integer(0);
  LevelBytes empty;
  empty.Number = Var::Empty();
  return {{"no such file", std::nullopt},
          {"a zero-byte file", std::vector<uint8_t>{}},
          {"cut inside the title", Cut(good, 6)},
          {"cut after the tier, before the level number", Cut(good, 2 + 9 + 4)},
          {"cut inside the level number", Cut(good, 2 + 9 + 4 + 3)},
          {"level number 0", zero.Bytes()},
          {"level number Empty", empty.Bytes()}};
}

TEST(LoadKeepsGame, TheRunningGameIsUnderWayBeforeTheLoad) {
  RunningGame p;
  EXPECT_GT(p.g.CharactersReleased, 1);
  EXPECT_EQ(p.g.ToolStock(ToolBlock), 2);
  EXPECT_EQ(p.g.ViewX, 3);
  EXPECT_LT(p.g.TimeLeft, 500);
}

TEST(LoadKeepsGame, AnUnsupportedFileChangesNothingAndTheGamePlaysOn) {
  for (const auto& [what, bytes] : UnsupportedFiles()) {
    SCOPED_TRACE(what);
    RunningGame p;
    Game untouched = p.g;
    const std::size_t messages = p.host.messages.size();
    ASSERT_EQ(p.Load(bytes), LoadResult::Unsupported);
    EXPECT_EQ(Differences(p.g, untouched), "");
    ASSERT_EQ(p.host.messages.size(), messages + 1);
    EXPECT_EQ(p.host.messages.back().rfind("Quorbit: The level file bad.lvl cannot be played: ", 0),
              0u)
        << p.host.messages.back();

    const int16_t tick = p.g.ReplayTick;
    p.Ticks(12);
    for (int i = 0; i < 12; ++i) Timer1_Timer(untouched);
    EXPECT_EQ(p.g.ReplayTick, tick + 12);
    EXPECT_EQ(Differences(p.g, untouched), "");
  }
}

// The one intended change: a missing level keeps the title and number just read (LevelTitle,
// LevelName, LevelNumber). LoadLevel never touches LevelFile, which its caller sets. Everything
// else is compared.
TEST(LoadKeepsGame, AMissingLevelKeepsEverythingButTheTitleAndNumberJustRead) {
  for (const auto& [what, bytes] : MissingFiles()) {
    SCOPED_TRACE(what);
    RunningGame p;
    Game untouched = p.g;
    ASSERT_EQ(p.Load(bytes), LoadResult::Missing);
    EXPECT_EQ(p.host.messages.back(), "Quorbit: This level does not exist!");
    EXPECT_EQ(p.g.LevelNumber, 0);
    EXPECT_EQ(p.g.LevelFile, untouched.LevelFile);
    untouched.LevelTitle = p.g.LevelTitle;
    untouched.LevelName = p.g.LevelName;
    untouched.LevelNumber = p.g.LevelNumber;
    EXPECT_EQ(Differences(p.g, untouched), "");

    const int32_t time = p.g.TimeLeft;
    p.Ticks(12);
    for (int i = 0; i < 12; ++i) Timer1_Timer(untouched);
    EXPECT_LT(p.g.TimeLeft, time);
    EXPECT_EQ(Differences(p.g, untouched), "");
  }
}

}  // namespace
}  // namespace qb::test
