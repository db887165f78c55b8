// Walking, falling, stepping up, turning and the leader's climb.
#include "sim/movement.h"

#include "core/drawing.h"
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

void StartShock(Game& g, int index) {
  CharRecord& c = g.Chars(index);
  c.Out = 0;
  c.Shocked = 1;
  Shock(g, index);
}

void EndClimb(Game& g) {
  g.ClimbArmed = False;
  g.ui.Label1Back(ToolClimb) = kWhite;
  g.ui.Label2Back(ToolClimb) = kWhite;
}

// Step 2: what is below. Returns true when the step ended here.
bool Below(Game& g, int index) {
  CharRecord& c = g.Chars(index);
  const int b = c.Y + 1;
  if (b == g.GridHeight) {
    Die(g, index);
    return true;
  }
  switch (g.Grid(c.X, b)) {
    case Empty:
      c.Y = To16(b, "Y");
      c.FallCount = Add16(c.FallCount, 1, "FallCount");
      if (index == g.Leader && g.Floating) c.FallCount = 0;
      return true;
    case Water:
    case Lava:
      c.Out = 0;
      c.Splashed = 1;
      Splash(g, index);
      return true;
    case ElectricWall:
      StartShock(g, index);
      return true;
    case ExitDoor:
      c.Out = 0;
      if (c.FallCount < 16) {
        GoInDoor(g, index);
      } else {
        c.Splatted = 1;
        Splat(g, index);
      }
      return true;
    case TeleportSquare:
      c.Teleporting = 1;
      c.Y = To16(b, "Y");
      Teleport(g, index);
      return true;
    default:
      return false;
  }
}

// Step 3: standing on solid ground. Returns true when the character splatted.
bool Land(Game& g, int index) {
  CharRecord& c = g.Chars(index);
  const int b = c.Y + 1;
  if (IsCrumble(g.Grid(c.X, b))) MarkCrumble(c, c.X, b);
  if (c.FallCount > 15) {
    c.Out = 0;
    c.Splatted = 1;
    Splat(g, index);
    return true;
  }
  if (index == g.Leader) {
    g.Floating = False;
    g.ui.Label1Back(ToolBlock) = kWhite;
    g.ui.Label2Back(ToolBlock) = kWhite;
  }
  c.FallCount = 0;
  return false;
}

// Walking or stepping up into square (x, y): an empty square is entered, an electric wall
// shocks, a door saves, a teleport takes the character in. Returns false for any other square,
// which blocks the way.
bool StepInto(Game& g, int index, int x, int y) {
  CharRecord& c = g.Chars(index);
  switch (g.Grid(x, y)) {
    case Empty:
      c.X = To16(x, "X");
      c.Y = To16(y, "Y");
      return true;
    case ElectricWall:
      StartShock(g, index);
      return true;
    case ExitDoor:
      c.Out = 0;
      GoInDoor(g, index);
      return true;
    case TeleportSquare:
      c.Teleporting = 1;
      c.X = To16(x, "X");
      c.Y = To16(y, "Y");
      Teleport(g, index);
      return true;
    default:
      return false;
  }
}

}  // namespace

void MoveChar(Game& g, int index) {
  CharRecord& c = g.Chars(index);
  if (index == g.Leader && g.ClimbArmed && g.Climbing) {
    ClimbUp(g);
    return;
  }
  if (Below(g, index)) return;
  if (Land(g, index)) return;

  const int n = c.X + c.Dir;
  if (n < 0 || n == g.GridWidth) {
    Die(g, index);
    return;
  }
  if (StepInto(g, index, n, c.Y)) return;

  const int u = c.Y - 1;
  if (u < 0) {
    Die(g, index);
    return;
  }
  if (IsCrumble(g.Grid(n, c.Y)) && g.Grid(n, u) != Empty) MarkCrumble(c, n, c.Y);
  if (StepInto(g, index, n, u)) return;
  // A wall at least two squares high.
  if (IsCrumble(g.Grid(n, u))) MarkCrumble(c, n, u);
  if (index == g.Leader && g.ClimbArmed) {
    g.Climbing = True;
    ClimbUp(g);
  } else {
    c.Dir = To16(-c.Dir, "Dir");
  }
}

void ClimbUp(Game& g) {
  CharRecord& c = g.Chars(g.Leader);
  const int u = c.Y - 1;
  const int n = c.X + c.Dir;
  if (u < 0) {
    Die(g, g.Leader);
    return;
  }
  const int ahead = g.Grid(n, u);
  if (ahead == Empty) {
    EndClimb(g);
    c.X = To16(n, "X");
    c.Y = To16(u, "Y");
    return;
  }
  if (ahead == ElectricWall) {
    StartShock(g, g.Leader);
    return;
  }
  if (IsCrumble(g.Grid(n, c.Y))) MarkCrumble(c, n, c.Y);
  const int above = g.Grid(c.X, u);
  if (above == Empty) {
    c.Y = To16(u, "Y");
    return;
  }
  if (above == ElectricWall) {
    StartShock(g, g.Leader);
    return;
  }
  if (IsCrumble(above)) {
    // Only the position is noted; the ceiling is not marked for removal.
    c.CrumbleX = c.X;
    c.CrumbleY = To16(u, "CrumbleY");
  }
  c.Dir = To16(-c.Dir, "Dir");
  EndClimb(g);
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
