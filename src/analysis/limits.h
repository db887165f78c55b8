// The limits every shipped level keeps with its solution, by tier: how far each press may be early
// or late, the spare tools, the margin of characters and of time, the shortcuts a player must not
// find, and a map sized to its idea.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "analysis/analyse.h"
#include "analysis/solve.h"

namespace qb::analysis {

struct TierLimits {
  int narrowestWindow = 1;   // the width of every press moved alone
  int narrowestShifted = 1;  // the width of every press moved with the later ones
  bool oneCycleAllowed =
      false;                 // some presses may have a width of 1 (a quarter, never two in a row)
  int spareTools = 0;        // stock left over the tool kinds the solution uses
  int savedMargin = 1;       // saved minus needed
  int timeLeftPercent = 10;  // of the cycle limit, when the solution wins
};

// The limits of tier 0 (Beginner) to 3 (Expert); the Expert ones for anything else.
TierLimits LimitsOfTier(int tier);

// The solution's presses from this many on must not be matched by a search of two presses, and
// from `kNoSinglePressFrom` on no single press of one tool may win.
constexpr int kNoTwoPressWinFrom = 5;
constexpr int kNoSinglePressFrom = 3;
// Beginner levels before this number teach walking and have no tools: they are won without any.
constexpr int kFirstLevelWithTools = 3;

struct LevelUnderTest {
  int tier = 0, number = 0;
  std::vector<int> stock;                  // per tool, as loaded
  const Analysis* analysis = nullptr;      // the level analysed with its solution
  std::optional<Solution> twoPressSearch;  // when the solution has kNoTwoPressWinFrom presses
};

// Every limit the level breaks, one sentence each; none when it keeps them all.
std::vector<std::string> Breaches(const LevelUnderTest& level);

// A press that must land in one exact cycle, moved alone or with the later presses.
bool IsOneCycle(const PressFigures& f);
int CountOneCycle(const Analysis& a);

// The spare tools: over the tool kinds the solution presses, the stock minus the presses.
int SpareTools(const std::vector<int>& stock, const Presses& presses);

}  // namespace qb::analysis
