// Dying at the level's edge, invisible traps and electric walls.
#include "sim/hazards.h"

#include "draw/drawing.h"
#include "sim/door.h"
#include "sim/leader_loss.h"

namespace qb {

LevelEnd Die(Game& g, int index) {
  PlayEffect(g, Sound::Die);
  if (index == g.Leader) {
    g.JumpStage = 0;
    LoseLeaderTools(g);
  }
  g.Chars(index).Out = 0;
  return UpdateInOut(g);
}

LevelEnd CheckTraps(Game& g) {
  for (int i = 0; i < g.CharactersTotal; ++i) {
    if (!g.Chars(i).Out) continue;
    for (int j = 0; j < kSlots; ++j) {
      CharRecord& c = g.Chars(i);
      if (g.TrapActive(j) && c.X == g.TrapX(j) && c.Y == g.TrapY(j) && !g.TrapSprung(j)) {
        c.Out = 0;
        g.TrapSprung(j) = True;
        c.Trapped = 1;
        if (const LevelEnd end = Trap(g, i); Ended(end)) return end;
      }
    }
  }
  return LevelEnd::None;
}

namespace {
// The jaw squares of trap stages 1 to 5 as (dx, dy) from the character, in painting order (left
// jaw, then right): they start two columns out on rows y-1 and y and close in, the upper jaw
// first, until they cover the character.
struct Jaw {
  int dx, dy;
};
constexpr Jaw kJaws[6][4] = {
    {},
    {{-2, -1}, {-2, 0}, {2, -1}, {2, 0}},
    {{-1, -1}, {-2, 0}, {1, -1}, {2, 0}},
    {{-1, -1}, {-1, 0}, {1, -1}, {1, 0}},
    {{0, -1}, {-1, 0}, {0, -1}, {1, 0}},
    {{0, -1}, {0, 0}, {0, -1}, {0, 0}},
};

void PaintJaws(Game& g, int x, int y, int stage, bool paint) {
  for (const Jaw& j : kJaws[stage]) {
    if (paint)
      PaintIfInGrid(g, x + j.dx, y + j.dy, g.SquareColour(Marker12));
    else
      RepaintSquare(g, x + j.dx, y + j.dy);
  }
}
}  // namespace

LevelEnd Trap(Game& g, int index) {
  if (index == g.Leader) LoseLeaderTools(g, /*keepSlow=*/true);
  CharRecord& c = g.Chars(index);
  const int x = c.X, y = c.Y;
  const int stage = c.Trapped;
  if (stage == 1) PlayEffect(g, Sound::Trap);
  if (stage >= 1 && stage <= 5) {
    DrawChar(g, index);
    if (stage > 1) PaintJaws(g, x, y, stage - 1, false);
    PaintJaws(g, x, y, stage, true);
    c.Trapped = To16(stage + 1, "Trapped");
    return LevelEnd::None;
  }
  PaintJaws(g, x, y, 5, false);
  c.Trapped = 0;
  for (int j = 0; j < kSlots; ++j)
    if (g.TrapActive(j) && g.TrapX(j) == c.X && g.TrapY(j) == c.Y) g.TrapSprung(j) = False;
  return UpdateInOut(g);
}

LevelEnd Shock(Game& g, int index) {
  if (index == g.Leader) LoseLeaderTools(g);
  CharRecord& c = g.Chars(index);
  const int stage = c.Shocked;
  if (stage == 1 || stage == 3) {
    if (stage == 1) PlayEffect(g, Sound::Shock);
    DrawBlock(g, c.X, c.Y, QBColor(14));
    c.Shocked = To16(stage + 1, "Shocked");
  } else if (stage == 2 || stage == 4) {
    DrawCharIn(g, index, index == g.Leader ? QBColor(0) : g.CrowdColour);
    c.Shocked = To16(stage + 1, "Shocked");
  } else {
    EraseChar(g, index);
    c.Shocked = 0;
    return UpdateInOut(g);
  }
  return LevelEnd::None;
}

}  // namespace qb
