// Compares two whole games: their state, the control model, the pictures, the last level end and
// the attempt being played and the one last finished.
#pragma once

#include <string>

#include "core/game.h"

namespace qb::test {

// The parts of two games that differ, by name (" state controls"); empty when they are the same.
inline std::string GameDifferences(const Game& a, const Game& b) {
  std::string out;
  if (!(static_cast<const GameState&>(a) == static_cast<const GameState&>(b))) out += " state";
  if (!(a.ui == b.ui)) out += " controls";
  if (!(a.pic == b.pic)) out += " pictures";
  if (a.LastEnd != b.LastEnd) out += " level end";
  if (!(a.attempt == b.attempt)) out += " attempt";
  if (!(a.lastFinished == b.lastFinished)) out += " finished attempt";
  return out;
}

}  // namespace qb::test
