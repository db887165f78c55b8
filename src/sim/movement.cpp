// Walking, falling, stepping up, turning and the leader's climb.
#include "sim/movement.h"

#include "draw/drawing.h"
#include "sim/door.h"
#include "sim/hazards.h"
#include "sim/liquids.h"
#include "sim/teleport.h"

namespace qb {
namespace {

void MarkCrumble(CharRecord& c, int x, int y) {
  c.CrumblePending = True;
  c.CrumbleX = To16(x, "CrumbleX");
  c.CrumbleY = To16(y, "CrumbleY");
}

LevelEnd StartShock(Game& g, int index) {
  CharRecord& c = g.Chars(index);
  c.Out = 0;
  c.Shocked = 1;
  return Shock(g, index);
}

// Whether a part of the move ended the character's turn, and how the level ended if it did.
struct Moved {
  bool done;
  LevelEnd end;
};
constexpr Moved kGoOn{false, LevelEnd::None};
Moved Done(LevelEnd end = LevelEnd::None) {
  return {true, end};
}

void EndClimb(Game& g) {
  g.ClimbArmed = False;
  g.ui.Label1Back(ToolClimb) = kWhite;
  g.ui.Label2Back(ToolClimb) = kWhite;
}

// What is below: falling off the level, falling on, into a liquid, onto an electric wall, a
// door or a teleport. Solid ground lets the move go on.
Moved Below(Game& g, int index) {
  CharRecord& c = g.Chars(index);
  const int b = c.Y + 1;
  if (b == g.GridHeight) return Done(Die(g, index));
  switch (g.Grid(c.X, b)) {
    case Empty:
      c.Y = To16(b, "Y");
      c.FallCount = Add16(c.FallCount, 1, "FallCount");
      if (index == g.Leader && g.Floating) c.FallCount = 0;
      return Done();
    case Water:
    case Lava:
      c.Out = 0;
      c.Splashed = 1;
      return Done(Splash(g, index));
    case ElectricWall:
      return Done(StartShock(g, index));
    case ExitDoor:
      c.Out = 0;
      if (c.FallCount < 16) return Done(GoInDoor(g, index));
      c.Splatted = 1;
      return Done(Splat(g, index));
    case TeleportSquare:
      c.Teleporting = 1;
      c.Y = To16(b, "Y");
      Teleport(g, index);
      return Done();
    default:
      return kGoOn;
  }
}

// Standing on solid ground: a long fall ends in a splat; otherwise the fall count is reset.
Moved Land(Game& g, int index) {
  CharRecord& c = g.Chars(index);
  const int b = c.Y + 1;
  if (IsCrumble(g.Grid(c.X, b))) MarkCrumble(c, c.X, b);
  if (c.FallCount > 15) {
    c.Out = 0;
    c.Splatted = 1;
    return Done(Splat(g, index));
  }
  if (index == g.Leader) {
    g.Floating = False;
    g.ui.Label1Back(ToolBlock) = kWhite;
    g.ui.Label2Back(ToolBlock) = kWhite;
  }
  c.FallCount = 0;
  return kGoOn;
}

// Walking or stepping up into square (x, y): an empty square is entered, an electric wall
// shocks, a door saves, a teleport takes the character in. Any other square blocks the way and
// lets the move go on.
Moved StepInto(Game& g, int index, int x, int y) {
  CharRecord& c = g.Chars(index);
  switch (g.Grid(x, y)) {
    case Empty:
      c.X = To16(x, "X");
      c.Y = To16(y, "Y");
      return Done();
    case ElectricWall:
      return Done(StartShock(g, index));
    case ExitDoor:
      c.Out = 0;
      return Done(GoInDoor(g, index));
    case TeleportSquare:
      c.Teleporting = 1;
      c.X = To16(x, "X");
      c.Y = To16(y, "Y");
      Teleport(g, index);
      return Done();
    default:
      return kGoOn;
  }
}

}  // namespace

LevelEnd MoveChar(Game& g, int index) {
  CharRecord& c = g.Chars(index);
  if (index == g.Leader && g.ClimbArmed && g.Climbing) return ClimbUp(g);
  if (const Moved m = Below(g, index); m.done) return m.end;
  if (const Moved m = Land(g, index); m.done) return m.end;

  const int n = c.X + c.Dir;
  if (n < 0 || n == g.GridWidth) return Die(g, index);
  if (const Moved m = StepInto(g, index, n, c.Y); m.done) return m.end;

  const int u = c.Y - 1;
  if (u < 0) return Die(g, index);
  if (IsCrumble(g.Grid(n, c.Y)) && g.Grid(n, u) != Empty) MarkCrumble(c, n, c.Y);
  if (const Moved m = StepInto(g, index, n, u); m.done) return m.end;
  // A wall at least two squares high.
  if (IsCrumble(g.Grid(n, u))) MarkCrumble(c, n, u);
  if (index == g.Leader && g.ClimbArmed) {
    g.Climbing = True;
    return ClimbUp(g);
  }
  c.Dir = To16(-c.Dir, "Dir");
  return LevelEnd::None;
}

LevelEnd ClimbUp(Game& g) {
  CharRecord& c = g.Chars(g.Leader);
  const int u = c.Y - 1;
  const int n = c.X + c.Dir;
  if (u < 0) return Die(g, g.Leader);
  const int ahead = g.Grid(n, u);
  if (ahead == Empty) {
    EndClimb(g);
    c.X = To16(n, "X");
    c.Y = To16(u, "Y");
    return LevelEnd::None;
  }
  if (ahead == ElectricWall) return StartShock(g, g.Leader);
  if (IsCrumble(g.Grid(n, c.Y))) MarkCrumble(c, n, c.Y);
  const int above = g.Grid(c.X, u);
  if (above == Empty) {
    c.Y = To16(u, "Y");
    return LevelEnd::None;
  }
  if (above == ElectricWall) return StartShock(g, g.Leader);
  if (IsCrumble(above)) {
    // Only the position is noted; the ceiling is not marked for removal.
    c.CrumbleX = c.X;
    c.CrumbleY = To16(u, "CrumbleY");
  }
  c.Dir = To16(-c.Dir, "Dir");
  EndClimb(g);
  return LevelEnd::None;
}

bool OnGround(const Game& g) {
  const CharRecord& c = g.Chars(g.Leader);
  const int below = g.Grid(c.X, c.Y + 1);
  return below != Lava && below != Water && below != Empty && c.FallCount < 16;
}

bool NotMetal(const Game& g, int x, int y) {
  const int k = g.Grid(x, y);
  if (g.LaserHitX != 0)
    return k == SoftWall || k == BuiltBlock || k == BlockSquare || k == SoftWall2 ||
           k == CrumbleWall || k == CrumbleWall2;
  return !(k == MetalWall || k == MetalWall2 || k == Water || k == Lava || k == ElectricWall ||
           k == ExitDoor || k == TeleportSquare);
}

}  // namespace qb
