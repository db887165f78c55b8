// The leader's jump: a fixed arc, one square per tick.
#pragma once

#include "core/game.h"

namespace qb {

// What one stage of the jump did: busy when it moved or held the leader this tick (else he
// walks on in the same tick), and how the level ended if his death ended it.
struct JumpStep {
  bool busy = true;
  LevelEnd end = LevelEnd::None;
};

JumpStep Jump(Game& g);

}  // namespace qb
