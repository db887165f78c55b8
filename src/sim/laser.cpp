// The leader's laser: a beam that grows one square a tick and explodes where it is stopped.
#include "sim/laser.h"

#include "draw/drawing.h"
#include "sim/bash_safe.h"
#include "sim/explode.h"
#include "sim/spend_tool.h"

namespace qb {
namespace {

void RepaintBeam(Game& g, int x, int y, int dir, int length) {
  for (int i = 1; i <= length; ++i) RepaintSquare(g, x + dir * i, y);
}

LevelEnd StartExplosion(Game& g, int column, int row) {
  g.LaserHitX = To16(column, "LaserHitX");
  g.LaserHitY = To16(row, "LaserHitY");
  g.Bombing = 1;
  return Explode(g);
}

}  // namespace

LevelEnd Lazer(Game& g) {
  const CharRecord& c = g.Chars(g.Leader);
  const int x = c.X, y = c.Y, dir = c.Dir;
  if (g.Lasering == 1) {
    PlayEffect(g, Sound::Laser);
    SpendTool(g, ToolLaser, /*prepend=*/true);
  }
  bool runOff = false;
  for (int i = 1; i <= g.Lasering; ++i) {
    const int b = x + dir * i;
    if (b < 0 || b == g.GridWidth) {
      g.Lasering = 11;
      runOff = true;
      break;
    }
    if (g.Grid(b, y) == Empty) {
      bool someone = false;
      for (int j = 0; j < g.CharactersTotal; ++j)
        if (g.Chars(j).X == b && g.Chars(j).Y == y) someone = true;
      if (g.Lasering != 11 && !someone) DrawBlock(g, b, y, QBColor(14));
      continue;
    }
    if (BashSafe(g, b, y, "Laser")) continue;  // a breakable square lets the beam through
    RepaintBeam(g, x, y, dir, g.Lasering - 1);
    g.Lasering = 0;
    return StartExplosion(g, b, y);
  }
  if (g.Lasering == 11) {
    RepaintBeam(g, x, y, dir, 10);
    g.Lasering = 0;
    return runOff ? LevelEnd::None : StartExplosion(g, x + 10 * dir, y);
  }
  g.Lasering = Add16(g.Lasering, 1, "Lasering");
  return LevelEnd::None;
}

}  // namespace qb
