// Stepping back through an attempt at a shipped level, with every tool pressed by the player.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "file_host.h"
#include "level/loader.h"
#include "play/cycle.h"
#include "play/player_acts.h"
#include "play/replay.h"
#include "play/step_history.h"
#include "support/game_compare.h"

namespace qb {
namespace {

namespace fs = std::filesystem;

struct Attempt {
  FileHost host;
  Game g{host};
  ReplayFile presses;  // the level's solution, pressed as the player would

  explicit Attempt(const std::string& name) {
    std::ifstream in(fs::path(QUORBIT_SOLUTIONS_DIR) / (name + ".replay"));
    std::ostringstream text;
    text << in.rdbuf();
    presses = ParseReplay(text.str());
    g.ui.OptionsChecked(OptSound) = false;
    g.ui.OptionsChecked(OptMusic) = false;
    g.SkipTitle = True;
    g.LevelFile = (fs::path(QUORBIT_LEVELS_DIR) / (name + ".lvl")).string();
    if (!LoadLevel(g, g.LevelFile).Loaded()) throw std::runtime_error("cannot load " + name);
  }

  // Runs `n` cycles, pressing the solution's tools before the cycle they belong to.
  void Run(int n, StepHistory* history = nullptr) {
    for (int i = 0; i < n; ++i) {
      if (history) history->Keep(g);
      const int cycle = g.attempt.cycles;
      if (cycle <= kLastReplayTick) {
        for (char letter : presses.slots[static_cast<std::size_t>(cycle)])
          ASSERT_FALSE(Ended(PressTool(g, ToolOfLetter(letter))));
      }
      ASSERT_FALSE(Ended(RunCycle(g))) << "cycle " << cycle;
    }
    if (history) history->Keep(g);
  }

  static int ToolOfLetter(char letter) {
    return static_cast<int>(std::string_view("CKBDJRXL").find(letter));
  }
};

// The cycles the finale's solution runs before the one that wins it.
int CyclesBeforeTheWin() {
  Attempt a("Expert20");
  for (int cycle = 0; cycle <= kLastReplayTick; ++cycle) {
    for (char letter : a.presses.slots[static_cast<std::size_t>(cycle)])
      if (Ended(PressTool(a.g, Attempt::ToolOfLetter(letter)))) return cycle;
    if (Ended(RunCycle(a.g))) return cycle;
  }
  return kLastReplayTick;
}

TEST(Stepping, ForwardThenBackEqualsAStraightRunAndGoesOnFromThere) {
  const int last = CyclesBeforeTheWin();
  ASSERT_GT(last, 200);
  const std::pair<int, int> cases[] = {{1, 1},          {30, 9},   {117, 2},
                                       {last - 60, 50}, {last, 1}, {last, last / 2}};
  for (const auto& [n, m] : cases) {
    Attempt stepped("Expert20"), straight("Expert20");
    StepHistory history;
    stepped.Run(n, &history);
    for (int i = 0; i < m; ++i) ASSERT_TRUE(history.StepBack(stepped.g)) << n << " back " << i;
    straight.Run(n - m);
    EXPECT_EQ(test::GameDifferences(stepped.g, straight.g), "")
        << n << " forward, " << m << " back";
    // The attempt goes on from there as if the later cycles had never been run.
    stepped.Run(m, &history);
    straight.Run(m);
    EXPECT_EQ(test::GameDifferences(stepped.g, straight.g), "")
        << n << " forward, " << m << " back, " << m << " forward again";
  }
}

TEST(Stepping, CopiesOfATwoThousandCycleAttemptStayUnderTwentyMegabytes) {
  const int last = CyclesBeforeTheWin();
  Attempt a("Expert20");
  StepHistory history;
  a.Run(last, &history);
  // The copies of the cycles after are the same game, counted on.
  for (int cycle = last + 1; cycle <= 2000; ++cycle) {
    a.g.attempt.cycles = cycle;
    history.Keep(a.g);
  }
  EXPECT_LT(history.CopiesBytes(), 20u << 20) << history.Copies() << " copies of " << sizeof(Game);
  EXPECT_GE(history.Copies(), 2000u / 80);  // still a copy every 80 cycles at most
  EXPECT_TRUE(history.GoBackTo(a.g, last - 10));
}

}  // namespace
}  // namespace qb
