// The game cycle: one tick of the game timer runs one cycle.
#include "play/cycle.h"

#include "draw/drawing.h"
#include "play/level_end.h"
#include "play/replay.h"
#include "sim/block.h"
#include "sim/build.h"
#include "sim/door.h"
#include "sim/explode.h"
#include "sim/hazards.h"
#include "sim/jump.h"
#include "sim/laser.h"
#include "sim/level_timer.h"
#include "sim/liquids.h"
#include "sim/movement.h"
#include "sim/teleport.h"

namespace qb {

void Timer1_Timer(Game& g) {
  FinishLevel(g, RunCycle(g));
}

LevelEnd RunCycle(Game& g) {
  g.SlowToggle = g.SlowToggle ? False : True;
  ++g.attempt.cycles;
  return TimeMe(g);
}

// A level that ends inside the cycle ends the cycle: every step returns at once with the end.
LevelEnd TimeMe(Game& g) {
  if (g.ReplayLog(0) == "E") g.ReplayLog(0) = "";
  if (g.ui.Option(OptReplay) && g.ReplayPlaying) {
    if (const LevelEnd end = ReplayMe(g); Ended(end)) return end;
    g.ui.Label8Back = (g.ReplayTick % 2 != 0) ? kReplayOdd : kReplayEven;
  }
  if (const LevelEnd end = BeginCycle(g); Ended(end)) return end;
  if (const LevelEnd end = DecreaseTimer(g); Ended(end)) return end;
  g.ReplayTick = Add16(g.ReplayTick, 1, "ReplayTick");
  if (g.ReplayTick == kLastReplayTick + 1) {
    g.ReplayTick = kLastReplayTick;
    g.ReplayLog(kLastReplayTick) = 'E';  // a char: see -Wrestrict in SetUpLevel
  }
  return LevelEnd::None;
}

namespace {

// Characters the next release may place: the search for an active entrance, round robin.
bool AnyEntrance(const Game& g) {
  for (int j = 0; j < kSlots; ++j)
    if (g.EntranceActive(j)) return true;
  return false;
}

LevelEnd Release(Game& g) {
  if (g.CharactersReleased == g.CharactersTotal) return LevelEnd::None;
  g.ReleaseTimer = Add32(g.ReleaseTimer, 1, "ReleaseTimer");
  if (g.ReleaseTimer != g.ReleaseInterval) return LevelEnd::None;
  g.ReleaseTimer = 0;
  if (!AnyEntrance(g)) return LevelEnd::None;  // a level with no active entrance releases nobody
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
  return UpdateInOut(g);
}

}  // namespace

LevelEnd BeginCycle(Game& g) {
  const bool held = g.SlowToggle && g.Tool5Countdown > 0;
  if (!held)
    for (int i = 0; i < g.CharactersTotal; ++i)
      if (i != g.Leader)
        if (const LevelEnd end = DoStuff(g, i); Ended(end)) return end;
  if (const LevelEnd end = DoStuff(g, g.Leader); Ended(end)) return end;
  if (const LevelEnd end = CheckTraps(g); Ended(end)) return end;
  if (held) return LevelEnd::None;
  return Release(g);
}

namespace {

// The stages of a character's death or passage that are under way, in their order.
LevelEnd RunStages(Game& g, int index) {
  if (g.Chars(index).Splatted > 0)
    if (const LevelEnd end = Splat(g, index); Ended(end)) return end;
  if (g.Chars(index).Splashed > 0)
    if (const LevelEnd end = Splash(g, index); Ended(end)) return end;
  if (g.Chars(index).Shocked > 0)
    if (const LevelEnd end = Shock(g, index); Ended(end)) return end;
  if (g.Chars(index).Trapped > 0)
    if (const LevelEnd end = Trap(g, index); Ended(end)) return end;
  if (g.Chars(index).Teleporting > 0) Teleport(g, index);
  return LevelEnd::None;
}

}  // namespace

LevelEnd DoStuff(Game& g, int index) {
  if (const LevelEnd end = RunStages(g, index); Ended(end)) return end;

  bool acted = false;
  if (g.Bombing > 0) {
    if (g.LaserHitX != 0) {
      if (index == g.Leader)
        if (const LevelEnd end = Explode(g); Ended(end)) return end;
    } else if (index == g.BombOwner) {
      if (const LevelEnd end = Explode(g); Ended(end)) return end;
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
      if (const LevelEnd end = Lazer(g); Ended(end)) return end;
      acted = true;
    }
    if (g.JumpStage > 0) {
      const JumpStep step = Jump(g);
      if (Ended(step.end)) return step.end;
      acted = step.busy;
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
    if (const LevelEnd end = MoveChar(g, index); Ended(end)) return end;
    if (g.Chars(index).Out && g.Chars(index).Teleporting == 0) DrawChar(g, index);
  }
  CharRecord& c = g.Chars(index);
  if (c.CrumblePending) {
    DrawSquare(g, c.CrumbleX, c.CrumbleY, Empty);
    c.CrumblePending = 0;
  }
  return LevelEnd::None;
}

}  // namespace qb
