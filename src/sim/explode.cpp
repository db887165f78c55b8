// The explosion of a bomb or of the laser's hit, one stage per call: a flash at the centre, a
// ring, the ring cleared, the blast area lit, then the blast.
#include "sim/explode.h"

#include <cstdlib>

#include "draw/drawing.h"
#include "sim/door.h"
#include "sim/movement.h"
#include "sim/spend_tool.h"

namespace qb {
namespace {

bool InUsedArea(const Game& g, int x, int y) {
  return x >= 0 && x < g.GridWidth && y >= 0 && y < g.GridHeight;
}

// The blast area: 5 by 5 squares round the centre, less the four corners.
bool InBlast(int dx, int dy) {
  return std::abs(dx) <= 2 && std::abs(dy) <= 2 && !(std::abs(dx) == 2 && std::abs(dy) == 2);
}

template <typename F>
void ForRing(const Game& g, int cx, int cy, bool withCentre, F&& f) {
  for (int dy = -1; dy <= 1; ++dy)
    for (int dx = -1; dx <= 1; ++dx) {
      if (!withCentre && dx == 0 && dy == 0) continue;
      if (InUsedArea(g, cx + dx, cy + dy)) f(cx + dx, cy + dy);
    }
}

template <typename F>
void ForBlast(const Game& g, int cx, int cy, F&& f) {
  for (int y = cy - 2; y <= cy + 2; ++y)
    for (int x = cx - 2; x <= cx + 2; ++x)
      if (InBlast(x - cx, y - cy) && InUsedArea(g, x, y)) f(x, y);
}

void Blast(Game& g, int cx, int cy) {
  for (int i = 0; i < g.CharactersTotal; ++i) {
    CharRecord& c = g.Chars(i);
    if (i != g.Leader && c.Out && c.Teleporting == 0 && InBlast(c.X - cx, c.Y - cy) &&
        InUsedArea(g, c.X, c.Y))
      c.Out = 0;
  }
  ForBlast(g, cx, cy, [&](int x, int y) {
    if (NotMetal(g, x, y))
      DrawSquare(g, x, y, Empty);
    else
      DrawBlock(g, x, y, g.SquareColour(g.Grid(x, y)));
  });
}

}  // namespace

LevelEnd Explode(Game& g) {
  const bool bomb = g.LaserHitX == 0;
  int cx = g.LaserHitX, cy = g.LaserHitY;
  if (bomb) {
    cx = g.Chars(g.BombOwner).X;
    cy = g.Chars(g.BombOwner).Y;
  }
  switch (g.Bombing) {
    case 1:
      if (bomb) {
        SpendTool(g, ToolBomb);
        ColourTool(g, ToolBomb, kToolInUse);
      }
      PlayEffect(g, Sound::Bomb);
      if (InUsedArea(g, cx, cy)) DrawBlock(g, cx, cy, QBColor(14));
      g.Bombing = 2;
      break;
    case 2:
      ForRing(g, cx, cy, false, [&](int x, int y) { DrawBlock(g, x, y, kToolsLost); });
      g.Bombing = 3;
      break;
    case 3:
      ForRing(g, cx, cy, true,
              [&](int x, int y) { DrawBlock(g, x, y, g.SquareColour(g.Grid(x, y))); });
      g.Bombing = 4;
      break;
    case 4:
      ForBlast(g, cx, cy, [&](int x, int y) { DrawBlock(g, x, y, QBColor(14)); });
      g.Bombing = 5;
      break;
    default:
      Blast(g, cx, cy);
      g.Floating = False;
      if (bomb) ColourTool(g, ToolBomb, kWhite);
      g.Bombing = 0;
      return UpdateInOut(g);
  }
  return LevelEnd::None;
}

}  // namespace qb
