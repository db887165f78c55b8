// Running a level with no window: the set-up, presses as replay entries, and a state's hash.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/game.h"

namespace qb::analysis {

// One tool letter pressed at one cycle.
struct Press {
  int cycle = 0;
  char letter = 'B';
  bool operator==(const Press&) const = default;
};
using Presses = std::vector<Press>;

// A square of the level, column and row; -1 for none.
struct Place {
  int x = -1, y = -1;
  bool operator==(const Place&) const = default;
};  // in cycle order; one cycle's letters in the order pressed

// "&Sound" and music off, "&Replay Levels" on, no title card, no drawing: set before the load.
void MakeHeadless(Game& g);

// The replay log from cycle `from` on holds exactly the presses of those cycles, and the replay
// plays; earlier cycles are left as they are.
void Schedule(Game& g, const Presses& presses, int from = 0);

// The presses of a parsed replay file (slots by cycle); an "E" ends the replay there.
Presses PressesOf(const std::vector<std::string>& slots);
// The presses as a replay file, one line a cycle.
std::string ReplayText(const Presses& presses);
// Sorts by cycle, keeping the order of one cycle's letters.
void SortByCycle(Presses& presses);

// One cycle, as RunCycle; a fault of the rules ends the level as lost, so that a search or an
// analysis counts that play as no win and goes on.
LevelEnd PlayCycle(Game& g);

// The cycles a freshly loaded level runs before its time runs out.
int CycleLimit(const Game& loaded);

// False once even every character still out or still to come could not make up the number
// needed: the level can no longer be won, whatever is pressed.
bool CanStillWin(const Game& g);

// A hash of everything the rules read that changes during play (the grid, the characters, the
// counters, the stock, the tools' states, the timers); the replay log is left out.
uint64_t StateHash(const Game& g);

}  // namespace qb::analysis
