// Level analysis on a built level whose every figure follows from its shape: two walls two
// squares high, each crossed only by a Build laid from the second square before it.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "analysis/analyse.h"
#include "analysis/solve.h"
#include "file_host.h"
#include "level/loader.h"
#include "play/cycle.h"
#include "play/replay.h"
#include "sim_run.h"
#include "support/level_builder.h"

namespace qb::analysis {
namespace {

// One walker from (1, 7). The first wall stands at column 10 on the floor, the second at
// column 20 on top of the first; the door is in the top of the second, at (27, 4).
LevelData TwoWalls(int builds, int slows) {
  std::vector<std::string> rows = {"M............................M",  //
                                   "M............................M",  //
                                   "M............................M",  //
                                   "M............................M",  //
                                   "M...................MMMMMMMDMM",  //
                                   "M...................MMMMMMMMMM",  //
                                   "M.........MMMMMMMMMMMMMMMMMMMM",  //
                                   "M.........MMMMMMMMMMMMMMMMMMMM",  //
                                   "MMMMMMMMMMMMMMMMMMMMMMMMMMMMMM"};
  LevelData d = test::MakeLevel(rows, 1, 7, 1, 1, 1, 60);
  d.ToolStock[ToolBuild] = static_cast<int16_t>(builds);
  d.ToolStock[ToolSlow] = static_cast<int16_t>(slows);
  return d;
}

// A headless game with the level loaded.
struct Headless {
  test::RecorderHost host;
  Game g{host};
  explicit Headless(const LevelData& level) {
    MakeHeadless(g);
    host.files["test.lvl"] = WriteLevel(level);
    if (!LoadLevel(g, "test.lvl").Loaded()) throw std::runtime_error("refused");
  }
};

// The first cycle that starts with the walker at column x, played with `presses`.
int CycleAt(const Game& start, const Presses& presses, int x) {
  Game g = start;
  Schedule(g, presses);
  for (int cycle = 0; cycle < 400; ++cycle) {
    if (g.Chars(0).Out && g.Chars(0).X == x) return cycle;
    if (Ended(RunCycle(g))) break;
  }
  return -1;
}

TEST(Analysis, WindowsRedundancyShortcutsAndSpaceOfTwoExactBuilds) {
  Headless level(TwoWalls(2, 1));
  const int first = CycleAt(level.g, {}, 8);
  const int second = CycleAt(level.g, {{first, 'B'}}, 18);
  ASSERT_GT(first, 5);
  ASSERT_GT(second, first);
  // A Slow changes nothing for a lone walker: it is redundant and wins wherever it is made.
  const Presses solution = {{first - 3, 'R'}, {first, 'B'}, {second, 'B'}};
  const Analysis a = Analyse(level.g, solution);

  ASSERT_TRUE(a.result.Won());
  ASSERT_EQ(a.presses.size(), 3u);
  const PressFigures& slow = a.presses[0];
  EXPECT_TRUE(slow.redundant);
  EXPECT_EQ(slow.alone.earliest, 0);
  EXPECT_EQ(slow.alone.latest, a.limit - 1);
  EXPECT_EQ(slow.shifted.Width(), 1);  // the builds move with it
  for (int i : {1, 2}) {
    const PressFigures& build = a.presses[static_cast<std::size_t>(i)];
    EXPECT_FALSE(build.redundant);
    EXPECT_EQ(build.alone.earliest, build.press.cycle);
    EXPECT_EQ(build.alone.Width(), 1);
    EXPECT_EQ(build.shifted.Width(), 1);
  }
  EXPECT_FALSE(a.noTools.Won());
  ASSERT_EQ(a.singleTool.size(), 2u);  // build and slow, the tools in stock
  for (const SingleToolWins& w : a.singleTool) EXPECT_TRUE(w.cycles.empty()) << w.tool;

  // The walker's path is visited, the open sky above it is the largest region never entered.
  EXPECT_EQ(a.space.area, 30 * 9);
  const std::vector<bool> visited = Replayer(level.g, solution).Visited();
  for (const auto& [x, y] : {std::pair{5, 7}, {15, 5}, {25, 3}}) EXPECT_TRUE(visited[x + 120 * y]);
  EXPECT_FALSE(visited[5 + 120 * 2]);
  EXPECT_EQ(a.space.regionX, 1);
  EXPECT_EQ(a.space.regionY, 0);
  EXPECT_EQ(a.space.sealed, 0);  // the sky is open to the path

  // A pocket carved into the solid wall is sealed; one opened onto the path is not.
  Game carved = level.g;
  for (const auto& [x, y] : {std::pair{24, 6}, {25, 6}, {24, 7}, {25, 7}})
    carved.Grid(x, y) = Empty;
  const SpaceUse pocket = MeasureSpace(carved, visited);
  EXPECT_EQ(pocket.sealed, 4);
  EXPECT_EQ(pocket.sealedX, 24);
  EXPECT_EQ(pocket.sealedY, 6);
  for (int y = 4; y <= 6; ++y) carved.Grid(23, y) = Empty;  // a shaft up to the walkway
  EXPECT_EQ(MeasureSpace(carved, visited).sealed, 0);
}

// The walker turns at each wall and passes column 8 to the right again and again: a Build laid
// on any of those passes that leaves him the dozen cycles to the door, and at no other cycle, wins.
TEST(Analysis, OneBuildWinsAtEveryPassOfItsSquare) {
  LevelData d = TwoWalls(1, 0);
  d.Square(27, 4) = MetalWall;
  d.Square(15, 5) = ExitDoor;  // the door now lies on top of the first wall
  Headless level(d);
  std::vector<int> passes;
  Game g = level.g;
  Schedule(g, {});
  for (int cycle = 0; !Ended(RunCycle(g)); ++cycle)
    if (g.Chars(0).Out && g.Chars(0).X == 8 && g.Chars(0).Dir == 1 &&
        cycle + 20 < CycleLimit(level.g))
      passes.push_back(cycle + 1);
  ASSERT_GT(passes.size(), 2u);
  long runs = 0;
  const auto wins = SingleToolShortcuts(level.g, runs);
  ASSERT_EQ(wins.size(), 1u);
  EXPECT_EQ(wins[0].cycles, passes);
}

// A slowed jump from the third row rises off the grid, a fault of the rules: a play that faults
// counts as not won, and the analysis goes on.
TEST(Analysis, APlayThatFaultsCountsAsNoWin) {
  LevelData d =
      test::MakeLevel({"M.......M", "M.......M", "M.......M", "MMMMMMMMM"}, 1, 2, 1, 1, 1, 30);
  d.ToolStock[ToolJump] = d.ToolStock[ToolSlow] = 1;
  Headless level(d);
  const Presses slowJump = {{4, 'R'}, {4, 'J'}};
  Game whole = level.g;
  Schedule(whole, slowJump);
  EXPECT_THROW(  // as the game plays it
      while (!Ended(RunCycle(whole))){}, ProgramFault);
  const Analysis a = Analyse(level.g, slowJump);
  EXPECT_FALSE(a.result.Won());
  EXPECT_FALSE(Solve(level.g, {2, 60}).result == SolveResult::Found);
}

TEST(Solve, FindsTheTwoBuildsAndNothingWithOneBuildInStock) {
  Headless two(TwoWalls(2, 0));
  const Solution found = Solve(two.g, {2, 60});
  ASSERT_EQ(found.result, SolveResult::Found);
  ASSERT_EQ(found.presses.size(), 2u);
  EXPECT_TRUE(Replayer(two.g, found.presses).BaseOutcome().Won());
  EXPECT_EQ(Solve(two.g, {1, 60}).result, SolveResult::NoneWithin);

  Headless one(TwoWalls(1, 0));
  const Solution none = Solve(one.g, {2, 60});
  EXPECT_EQ(none.result, SolveResult::NoneWithin);
  EXPECT_GT(none.states, 0);
  EXPECT_EQ(Solve(two.g, {2, 0}).result, SolveResult::Undetermined);
}

std::string ReadText(const std::filesystem::path& p) {
  std::ostringstream s;
  s << std::ifstream(p, std::ios::binary).rdbuf();
  return s.str();
}

// Switching the drawing off changes nothing the rules do.
TEST(Drawing, OffGivesTheSameTraceOfAShippedSolution) {
  const std::string level = std::string(QUORBIT_LEVELS_DIR) + "/Expert20.lvl";
  const std::string solution = ReadText(std::string(QUORBIT_SOLUTIONS_DIR) + "/Expert20.replay");
  std::string traces[2];
  for (int drawing : {0, 1}) {
    SimOptions options;
    options.level = level;
    options.replay = solution;
    options.trace = true;
    options.drawing = drawing == 1;
    std::ostringstream out, err;
    ASSERT_EQ(RunSimulation(options, out, err).exitStatus, 0) << err.str();
    traces[drawing] = out.str();
  }
  EXPECT_NE(traces[0].find("\"result\":\"won\""), std::string::npos);
  EXPECT_EQ(traces[0], traces[1]);
}

}  // namespace
}  // namespace qb::analysis
