// May a square be broken through (or passed by a running laser)?
#include "sim/bash_safe.h"

namespace qb {

bool BashSafe(Game& g, int x, int y, std::string_view mode) {
  const int k = g.Grid(x, y);
  bool result = k == SoftWall || k == BuiltBlock || k == BlockSquare || k == SoftWall2 ||
                k == CrumbleWall || k == CrumbleWall2;
  // The game has no sound 103: digging into a hard square is silent.
  (void)mode;
  if (k == Empty && g.Lasering > 0) result = true;
  return result;
}

}  // namespace qb
