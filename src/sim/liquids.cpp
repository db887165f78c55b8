// Water and lava: the splash death, a column of the liquid's colour over three ticks.
#include "sim/liquids.h"

#include "draw/drawing.h"
#include "sim/door.h"
#include "sim/leader_loss.h"

namespace qb {

LevelEnd Splash(Game& g, int index) {
  if (index == g.Leader) LoseLeaderTools(g);
  CharRecord& c = g.Chars(index);
  const int x = c.X, y = c.Y;
  const int liquid = g.Grid(x, y + 1);
  const Colour l = g.SquareColour(liquid);
  g.SplashColour(index) = l;
  switch (c.Splashed) {
    case 1:
      PlayEffect(g, liquid == Water ? Sound::Water : Sound::Lava);
      PaintIfInGrid(g, x, y, l);
      PaintIfInGrid(g, x, y - 1, l);
      c.Splashed = 2;
      break;
    case 2:
      PaintIfInGrid(g, x, y - 2, l);
      PaintIfInGrid(g, x - 1, y - 3, l);
      PaintIfInGrid(g, x + 1, y - 3, l);
      c.Splashed = 3;
      break;
    default:
      RepaintSquare(g, x, y);
      RepaintSquare(g, x, y - 1);
      RepaintSquare(g, x, y - 2);
      RepaintSquare(g, x - 1, y - 3);
      RepaintSquare(g, x + 1, y - 3);
      c.Splashed = 0;
      return UpdateInOut(g);
  }
  return LevelEnd::None;
}

}  // namespace qb
