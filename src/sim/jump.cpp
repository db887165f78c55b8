// The leader's jump: two squares up and forward, two down and forward (three each while slow).
#include "sim/jump.h"

#include "core/drawing.h"
#include "sim/hazards.h"
#include "sim/liquids.h"
#include "tools/use_tool.h"

namespace qb {
namespace {

// Where a stage of the jump left the leader. Fell: he died leaving the level and is not drawn.
enum class Landing { Moved, Dead, Blocked, Fell };

void ShockLeader(Game& g) {
  CharRecord& c = g.Chars(g.Leader);
  c.Out = 0;
  c.Shocked = 1;
  Shock(g, g.Leader);
}

// Stages 3 to 5: moving onto (n, t), with liquids and electric walls deadly.
Landing Descend(Game& g, int n, int t) {
  CharRecord& c = g.Chars(g.Leader);
  const int k = g.Grid(n, t);
  if (k == Empty) {
    c.X = To16(n, "X");
    c.Y = To16(t, "Y");
    return Landing::Moved;
  }
  g.JumpStage = 0;
  if (k == Water || k == Lava) {
    c.Out = 0;
    c.Splashed = 1;
    Splash(g, g.Leader);
    return Landing::Dead;
  }
  if (k == ElectricWall) {
    ShockLeader(g);
    return Landing::Dead;
  }
  return Landing::Blocked;
}

// Stages 1 and 2: rising onto (n, u); above the top row the leader leaves the level.
Landing Rise(Game& g, int n, int u) {
  if (u < 0) {
    Die(g, g.Leader);
    return Landing::Fell;
  }
  CharRecord& c = g.Chars(g.Leader);
  const int k = g.Grid(n, u);
  if (k == Empty) {
    c.X = To16(n, "X");
    c.Y = To16(u, "Y");
    return Landing::Moved;
  }
  if (k == ElectricWall) {
    g.JumpStage = 0;
    ShockLeader(g);
    return Landing::Dead;
  }
  return Landing::Blocked;
}

}  // namespace

bool Jump(Game& g) {
  bool busy = true;
  CharRecord& c = g.Chars(g.Leader);
  const int n = c.X + c.Dir, u = c.Y - 1, d = c.Y + 1;
  EraseChar(g, g.Leader);
  if (n < 0 || n == g.GridWidth) {
    Die(g, g.Leader);
    return busy;
  }
  switch (g.JumpStage) {
    case 1: {
      PlayEffect(g, 115, "CUSTOM");
      SpendTool(g, ToolJump, /*prepend=*/true);
      const Landing l = Rise(g, n, u);
      if (l == Landing::Fell) return busy;
      if (l == Landing::Moved) g.JumpStage = 2;
      if (l == Landing::Blocked) {  // the jump fails where it stands; the jump spent is gone
        g.ui.Label1Back(ToolJump) = kWhite;
        g.ui.Label2Back(ToolJump) = kWhite;
        g.JumpStage = 0;
      }
      break;
    }
    case 2: {
      const Landing l = Rise(g, n, u);
      if (l == Landing::Fell) return busy;
      if (l == Landing::Moved) g.JumpStage = 3;
      if (l == Landing::Blocked) {  // he walks on from here in this same tick
        g.JumpStage = 0;
        busy = false;
      }
      break;
    }
    case 3: {
      const int t = g.Tool5Countdown > 0 ? u : d;
      const Landing l = Descend(g, n, t);
      if (l == Landing::Moved) g.JumpStage = 4;
      if (l == Landing::Blocked) busy = false;
      break;
    }
    case 4:
    case 5: {
      const Landing l = Descend(g, n, d);
      if (l == Landing::Moved)
        g.JumpStage = g.Tool5Countdown > 0 ? static_cast<int16_t>(g.JumpStage + 1) : int16_t{0};
      if (l == Landing::Blocked) busy = false;
      break;
    }
    default: {
      g.JumpStage = 0;
      const int k = g.Grid(n, d);
      if (k == Empty) {
        c.X = To16(n, "X");
        c.Y = To16(d, "Y");
      } else if (k == Water || k == Lava) {
        c.Out = 0;
        c.Splashed = 1;
        Splash(g, g.Leader);
      } else if (k == ElectricWall) {
        ShockLeader(g);
      }
      break;
    }
  }
  DrawChar(g, g.Leader);
  return busy;
}

}  // namespace qb
