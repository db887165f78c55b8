// The leader's jump: two squares up and forward, two down and forward (three each while slow).
#include "sim/jump.h"

#include "core/drawing.h"
#include "sim/hazards.h"
#include "sim/liquids.h"
#include "tools/use_tool.h"

namespace qb {
namespace {

enum class Landing { Moved, Dead, Blocked };

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
      if (u < 0) {
        Die(g, g.Leader);
        return busy;
      }
      const int k = g.Grid(n, u);
      if (k == Empty) {
        c.X = To16(n, "X");
        c.Y = To16(u, "Y");
        g.JumpStage = 2;
      } else if (k == ElectricWall) {
        g.JumpStage = 0;
        ShockLeader(g);
      } else {
        g.ui.Label1Back(ToolJump) = kWhite;
        g.ui.Label2Back(ToolJump) = kWhite;
        g.JumpStage = 0;
      }
      break;
    }
    case 2: {
      if (u < 0) {
        Die(g, g.Leader);
        return busy;
      }
      const int k = g.Grid(n, u);
      if (k == Empty) {
        c.X = To16(n, "X");
        c.Y = To16(u, "Y");
        g.JumpStage = 3;
      } else if (k == ElectricWall) {
        g.JumpStage = 0;
        ShockLeader(g);
      } else {
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
