// Stepping back through an attempt: copies of the game kept every few cycles; going back
// restores the latest copy before the wanted cycle and runs the player's acts again up to it.
#pragma once

#include <cstddef>
#include <vector>

#include "core/game.h"

namespace qb {

class StepHistory {
 public:
  // Copies are kept every 20 cycles at first; when there would be more than 64, every other
  // one is dropped and the spacing doubles, so memory stays bounded however long a level runs.
  static constexpr int kFirstInterval = 20;
  static constexpr std::size_t kMaxCopies = 64;

  // Takes note of the game after a load, a cycle or a command: a new attempt forgets the old
  // one's copies; a cycle on the spacing is copied (once, before the player acts in it).
  void Keep(const Game& g);

  // Takes the game back to the state after `cycle` cycles of this attempt, dropping what the
  // player did from that cycle on. The pause, fast and option settings stay as they are now.
  // Returns false, with the game untouched, when there is no copy to go back from.
  bool GoBackTo(Game& g, int cycle);
  bool StepBack(Game& g) { return GoBackTo(g, g.attempt.cycles - 1); }

  // The memory the copies take, the games and the text they own.
  std::size_t CopiesBytes() const;
  std::size_t Copies() const { return copies_.size(); }

 private:
  int attempt_ = -1;
  int interval_ = kFirstInterval;
  std::vector<Game> copies_;  // oldest first
};

}  // namespace qb
