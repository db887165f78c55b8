// The level's time limit.
#include "sim/level_timer.h"

namespace qb {

LevelEnd DecreaseTimer(Game& g) {
  g.TimerHalfTick = g.TimerHalfTick ? False : True;
  if (!g.TimerHalfTick) return LevelEnd::None;
  g.TimeLeft = Add32(g.TimeLeft, -1, "TimeLeft");
  if (g.TimeLeft <= 30) g.ui.Label5Back = (g.TimeLeft % 2 == 0) ? kTimeWarning : kSystemWindow;
  if (g.TimeLeft == -1) {
    g.ui.Timer1Enabled = false;
    if (g.Drawing) g.pic.Picture1.Clear();
    g.SkipTitle = False;
    g.LastEnd = LevelEnd::Timeout;
    return g.LastEnd;
  }
  g.ui.Label5Caption = "\nTime Left\n" + std::to_string(g.TimeLeft);
  return LevelEnd::None;
}

}  // namespace qb
