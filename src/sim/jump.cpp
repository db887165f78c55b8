// The leader's jump: two squares up and forward, two down and forward (three each while slow).
#include "sim/jump.h"

#include "draw/drawing.h"
#include "sim/hazards.h"
#include "sim/liquids.h"
#include "sim/spend_tool.h"

namespace qb {
namespace {

// Where a stage of the jump left the leader. Fell: he died leaving the level and is not drawn.
enum class Landing { Moved, Dead, Blocked, Fell };

struct Landed {
  Landing how;
  LevelEnd end = LevelEnd::None;
};

LevelEnd ShockLeader(Game& g) {
  CharRecord& c = g.Chars(g.Leader);
  c.Out = 0;
  c.Shocked = 1;
  return Shock(g, g.Leader);
}

LevelEnd SplashLeader(Game& g) {
  CharRecord& c = g.Chars(g.Leader);
  c.Out = 0;
  c.Splashed = 1;
  return Splash(g, g.Leader);
}

// Stages 3 to 5: moving onto (n, t), with liquids and electric walls deadly.
Landed Descend(Game& g, int n, int t) {
  CharRecord& c = g.Chars(g.Leader);
  const int k = g.Grid(n, t);
  if (k == Empty) {
    c.X = To16(n, "X");
    c.Y = To16(t, "Y");
    return {Landing::Moved};
  }
  g.JumpStage = 0;
  if (k == Water || k == Lava) return {Landing::Dead, SplashLeader(g)};
  if (k == ElectricWall) return {Landing::Dead, ShockLeader(g)};
  return {Landing::Blocked};
}

// Stages 1 and 2: rising onto (n, u); above the top row the leader leaves the level.
Landed Rise(Game& g, int n, int u) {
  if (u < 0) return {Landing::Fell, Die(g, g.Leader)};
  CharRecord& c = g.Chars(g.Leader);
  const int k = g.Grid(n, u);
  if (k == Empty) {
    c.X = To16(n, "X");
    c.Y = To16(u, "Y");
    return {Landing::Moved};
  }
  if (k == ElectricWall) {
    g.JumpStage = 0;
    return {Landing::Dead, ShockLeader(g)};
  }
  return {Landing::Blocked};
}

}  // namespace

JumpStep Jump(Game& g) {
  JumpStep step;
  CharRecord& c = g.Chars(g.Leader);
  const int n = c.X + c.Dir, u = c.Y - 1, d = c.Y + 1;
  EraseChar(g, g.Leader);
  if (n < 0 || n == g.GridWidth) {
    step.end = Die(g, g.Leader);
    return step;
  }
  switch (g.JumpStage) {
    case 1: {
      PlayEffect(g, Sound::Jump);
      SpendTool(g, ToolJump, /*prepend=*/true);
      const Landed l = Rise(g, n, u);
      step.end = l.end;
      if (l.how == Landing::Fell) return step;
      if (l.how == Landing::Moved) g.JumpStage = 2;
      if (l.how == Landing::Blocked) {  // the jump fails where it stands; the jump spent is gone
        g.ui.Label1Back(ToolJump) = kWhite;
        g.ui.Label2Back(ToolJump) = kWhite;
        g.JumpStage = 0;
      }
      break;
    }
    case 2: {
      const Landed l = Rise(g, n, u);
      step.end = l.end;
      if (l.how == Landing::Fell) return step;
      if (l.how == Landing::Moved) g.JumpStage = 3;
      if (l.how == Landing::Blocked) {  // he walks on from here in this same tick
        g.JumpStage = 0;
        step.busy = false;
      }
      break;
    }
    case 3: {
      const int t = g.Tool5Countdown > 0 ? u : d;
      const Landed l = Descend(g, n, t);
      step.end = l.end;
      if (l.how == Landing::Moved) g.JumpStage = 4;
      if (l.how == Landing::Blocked) step.busy = false;
      break;
    }
    case 4:
    case 5: {
      const Landed l = Descend(g, n, d);
      step.end = l.end;
      if (l.how == Landing::Moved)
        g.JumpStage = g.Tool5Countdown > 0 ? static_cast<int16_t>(g.JumpStage + 1) : int16_t{0};
      if (l.how == Landing::Blocked) step.busy = false;
      break;
    }
    default: {
      g.JumpStage = 0;
      const int k = g.Grid(n, d);
      if (k == Empty) {
        c.X = To16(n, "X");
        c.Y = To16(d, "Y");
      } else if (k == Water || k == Lava) {
        step.end = SplashLeader(g);
      } else if (k == ElectricWall) {
        step.end = ShockLeader(g);
      }
      break;
    }
  }
  if (Ended(step.end)) return step;
  DrawChar(g, g.Leader);
  return step;
}

}  // namespace qb
