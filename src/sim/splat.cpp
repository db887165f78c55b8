// The splat: a character dies from a long fall, in three stages of spray.
#include "draw/drawing.h"
#include "sim/door.h"
#include "sim/leader_loss.h"
#include "sim/movement.h"

namespace qb {

LevelEnd Splat(Game& g, int index) {
  if (index == g.Leader) LoseLeaderTools(g);
  CharRecord& c = g.Chars(index);
  const Colour spray = index == g.Leader ? QBColor(0) : g.CrowdColour;
  const int x = c.X, y = c.Y;
  switch (c.Splatted) {
    case 1:
      PlayEffect(g, Sound::Splat);
      PaintIfInGrid(g, x - 1, y - 1, spray);
      PaintIfInGrid(g, x + 1, y - 1, spray);
      c.Splatted = 2;
      break;
    case 2:
      RepaintSquare(g, x - 1, y - 1);
      RepaintSquare(g, x + 1, y - 1);
      PaintIfInGrid(g, x - 1, y, spray);
      PaintIfInGrid(g, x + 1, y, spray);
      c.Splatted = 3;
      break;
    default:
      RepaintSquare(g, x - 1, y);
      RepaintSquare(g, x + 1, y);
      c.Splatted = 0;
      return UpdateInOut(g);
  }
  return LevelEnd::None;
}

}  // namespace qb
