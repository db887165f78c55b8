// The game cycle: one tick of the game timer runs one cycle.
#include "core/cycle.h"

#include "core/drawing.h"
#include "sim/door.h"
#include "sim/hazards.h"
#include "sim/jump.h"
#include "sim/laser.h"
#include "sim/liquids.h"
#include "sim/movement.h"
#include "sim/teleport.h"
#include "tools/block.h"
#include "tools/build.h"
#include "tools/explode.h"
#include "tools/level_timer.h"
#include "tools/replay.h"

namespace qb {

void Timer1_Timer(Game& g) {
  g.SlowToggle = g.SlowToggle ? False : True;
  TimeMe(g);
}

void TimeMe(Game& g) {
  try {
    if (g.ReplayLog(0) == "E") g.ReplayLog(0) = "";
    if (g.ui.Option(OptReplay) && g.ReplayPlaying) {
      ReplayMe(g);
      g.ui.Label8Back = (g.ReplayTick % 2 != 0) ? kReplayOdd : kReplayEven;
    }
    BeginCycle(g);
    DecreaseTimer(g);
    g.ReplayTick = Add16(g.ReplayTick, 1, "ReplayTick");
    if (g.ReplayTick == kLastReplayTick + 1) {
      g.ReplayTick = kLastReplayTick;
      g.ReplayLog(kLastReplayTick) = 'E';  // a char: see -Wrestrict in SetUpLevel
    }
  } catch (const LevelOver&) {
    // The level ended inside this cycle: the rest of the cycle does not run.
  }
}

namespace {

// Characters the next release may place: the search for an active entrance, round robin.
bool AnyEntrance(const Game& g) {
  for (int j = 0; j < kSlots; ++j)
    if (g.EntranceActive(j)) return true;
  return false;
}

void Release(Game& g) {
  if (g.CharactersReleased == g.CharactersTotal) return;
  g.ReleaseTimer = Add32(g.ReleaseTimer, 1, "ReleaseTimer");
  if (g.ReleaseTimer != g.ReleaseInterval) return;
  g.ReleaseTimer = 0;
  if (!AnyEntrance(g)) return;  // a level with no active entrance releases nobody
  g.CharactersReleased = Add32(g.CharactersReleased, 1, "CharactersReleased");
  const int index = g.CharactersReleased - 1;
  do {
    g.NextEntrance = Add16(g.NextEntrance, 1, "NextEntrance");
    if (g.NextEntrance == kSlots) g.NextEntrance = 0;
  } while (!g.EntranceActive(g.NextEntrance));
  CharRecord& c = g.Chars(index);
  c.X = To16(g.EntranceX(g.NextEntrance), "X");
  c.Y = g.EntranceY(g.NextEntrance);
  c.Out = True;
  DrawChar(g, index);
  UpdateInOut(g);
}

}  // namespace

void BeginCycle(Game& g) {
  const bool held = g.SlowToggle && g.Tool5Countdown > 0;
  if (!held)
    for (int i = 0; i < g.CharactersTotal; ++i)
      if (i != g.Leader) DoStuff(g, i);
  DoStuff(g, g.Leader);
  CheckTraps(g);
  if (held) return;
  Release(g);
}

void DoStuff(Game& g, int index) {
  if (g.Chars(index).Splatted > 0) Splat(g, index);
  if (g.Chars(index).Splashed > 0) Splash(g, index);
  if (g.Chars(index).Shocked > 0) Shock(g, index);
  if (g.Chars(index).Trapped > 0) Trap(g, index);
  if (g.Chars(index).Teleporting > 0) Teleport(g, index);

  bool acted = false;
  if (g.Bombing > 0) {
    if (g.LaserHitX != 0) {
      if (index == g.Leader) Explode(g);
    } else if (index == g.BombOwner) {
      Explode(g);
      acted = true;
    }
  }
  if (index == g.Leader) {
    if (g.Blocking > 0) {
      Block(g);
      acted = true;
    }
    if (g.Building > 0) {
      Build(g);
      acted = true;
    }
    if (g.Lasering > 0) {
      Lazer(g);
      acted = true;
    }
    if (g.JumpStage > 0) {
      acted = Jump(g);
      if (g.JumpStage == 0 && g.Chars(g.Leader).Out) {
        g.ui.Label1Back(ToolJump) = kWhite;
        g.ui.Label2Back(ToolJump) = kWhite;
      }
    }
    if (g.Tool5Countdown > 0) {
      g.Tool5Countdown = Add16(g.Tool5Countdown, -1, "Tool5Countdown");
      if (g.Tool5Countdown == 0) {
        g.ui.Label1Back(ToolSlow) = kSystemWindow;
        g.ui.Label2Back(ToolSlow) = kSystemWindow;
      }
    }
  }
  if (!acted && g.Chars(index).Out && g.Chars(index).Teleporting == 0) {
    EraseChar(g, index);
    MoveChar(g, index);
    if (g.Chars(index).Out && g.Chars(index).Teleporting == 0) DrawChar(g, index);
  }
  CharRecord& c = g.Chars(index);
  if (c.CrumblePending) {
    DrawSquare(g, c.CrumbleX, c.CrumbleY, Empty);
    c.CrumblePending = 0;
  }
}

}  // namespace qb
