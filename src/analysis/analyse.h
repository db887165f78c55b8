// The figures of a level and its solution: result, timing windows, redundant presses,
// shortcuts and the use of space.
#pragma once

#include <vector>

#include "analysis/replayer.h"

namespace qb::analysis {

// The cycles around a press's own at which it still wins: earliest to latest, no gap between.
struct Window {
  int earliest = 0, latest = 0;
  int Width() const { return latest - earliest + 1; }
};

struct PressFigures {
  Press press;
  Place leader;            // the leader's square when the press is made (-1 before he is out)
  Window alone;            // the press moved, every other press kept where it is
  Window shifted;          // the press and every later one moved by the same number of cycles
  bool redundant = false;  // the level is won without it
};

// The cycles at which pressing one tool, and nothing else, wins the level.
struct SingleToolWins {
  int tool = 0;
  std::vector<int> cycles;
};

struct SpaceUse {
  int area = 0;     // squares of the used area
  int visited = 0;  // squares some character stood on while the solution played
  // The largest 4-connected region of empty squares that no character entered, its size and
  // its first square (top row first, then leftmost).
  int region = 0;
  int regionX = -1, regionY = -1;
  std::vector<Place> regionSquares;  // the region's squares, its first one first
  // The largest region of empty squares closed off from every square a character entered: open
  // space the level's walls seal away (4-connected through empty and entered squares).
  int sealed = 0;
  int sealedX = -1, sealedY = -1;
  std::vector<Place> sealedSquares;
};

struct Analysis {
  Outcome result;
  int limit = 0;  // cycles before the time runs out
  int needed = 0, total = 0;
  std::vector<PressFigures> presses;
  Outcome noTools;
  std::vector<SingleToolWins> singleTool;  // one entry per tool in stock
  SpaceUse space;
  long runs = 0;  // plays of the level the figures took
};

// The presses of the solution analysed, in its order.
Presses SolutionPresses(const Analysis& a);
// The narrowest window of any press, moved alone and moved with the later ones; 0 without presses.
struct Narrowest {
  int alone = 0, shifted = 0;
};
Narrowest NarrowestWindows(const Analysis& a);

// `start`: a headless game with the level just loaded (MakeHeadless before the load).
Analysis Analyse(const Game& start, const Presses& solution);

// The wins with one press of one tool: every tool in stock, every cycle the level runs without
// tools. `runs` counts the plays.
std::vector<SingleToolWins> SingleToolShortcuts(const Game& start, long& runs);

SpaceUse MeasureSpace(const Game& start, const std::vector<bool>& visited);

}  // namespace qb::analysis
