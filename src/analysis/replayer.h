// Plays variations of one solution quickly: the solution is played once and copies of the game
// are kept along the way, so a variation starts from the last copy before it first differs.
#pragma once

#include <memory>
#include <vector>

#include "analysis/headless.h"

namespace qb::analysis {

struct Outcome {
  LevelEnd end = LevelEnd::None;  // None: stopped early, the level could no longer be won
  int cycles = 0;                 // cycles run until the end (or the stop)
  int saved = 0;
  bool Won() const { return end == LevelEnd::Won; }
};

// Runs `g` from where it is to the level's end, or until the level can no longer be won, or
// until `maxCycles` more cycles have run.
Outcome RunToEnd(Game& g, int maxCycles);

class Replayer {
 public:
  // `start`: a headless game just loaded. Keeps at most about `copies` copies of the game.
  Replayer(const Game& start, Presses base, int copies = 200);

  const Presses& Base() const { return base_; }
  const Outcome& BaseOutcome() const { return baseOutcome_; }
  // The squares some character stood on during the base run, by x + 120 * y.
  const std::vector<bool>& Visited() const { return visited_; }
  // The leader's square as each press of the base is made, none while he is not out.
  const std::vector<Place>& LeaderAtPresses() const { return leaderAtPresses_; }

  // The outcome of the level played with `presses` (in cycle order) instead of the base.
  Outcome Run(const Presses& presses) const;
  int Runs() const { return runs_; }

 private:
  Presses base_;
  Outcome baseOutcome_;
  int stride_ = 1;  // cycles between two kept copies
  std::vector<std::unique_ptr<Game>> copies_;
  std::vector<bool> visited_;
  std::vector<Place> leaderAtPresses_;
  mutable int runs_ = 0;
};

// The first cycle at which the replays of `a` and `b` differ, or a number past every press.
int FirstDifference(const Presses& a, const Presses& b);

}  // namespace qb::analysis
