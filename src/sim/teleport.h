// Teleports: a four-tick passage to the partner of a pair.
#pragma once

#include "core/game.h"

namespace qb {

void Teleport(Game& g, int index);
// The partner of teleport slot j: 0 with 1, 2 with 3, 4 with 5.
inline int TeleportPartner(int j) {
  return j ^ 1;
}

}  // namespace qb
