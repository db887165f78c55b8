// The level's time limit and the move to the next level.
#include "tools/level_timer.h"

#include "core/loader.h"
#include "core/screens.h"
#include "tools/level_commands.h"

namespace qb {

void DecreaseTimer(Game& g) {
  g.TimerHalfTick = g.TimerHalfTick ? False : True;
  if (!g.TimerHalfTick) return;
  g.TimeLeft = Add32(g.TimeLeft, -1, "TimeLeft");
  if (g.TimeLeft <= 30) g.ui.Label5Back = (g.TimeLeft % 2 == 0) ? kTimeWarning : kSystemWindow;
  if (g.TimeLeft == -1) {
    g.ui.Timer1Enabled = false;
    g.pic.Picture1.Clear();
    g.SkipTitle = False;
    g.LastEnd = LevelEnd::Timeout;
    ++g.LevelsEnded;
    ShowLooseLevel(g);
    LoadLevel(g, g.LevelFile);
    throw LevelOver{};
  }
  g.ui.Label5Caption = "\nTime Left\n" + std::to_string(g.TimeLeft);
}

void GoToNextLevel(Game& g) {
  ShowWinLevel(g);
  g.LevelNumber = Add32(g.LevelNumber, 1, "LevelNumber");
  if (g.LevelNumber == 21) {
    g.CurrentSkill = Add32(g.CurrentSkill, 1, "CurrentSkill");
    if (g.CurrentSkill == 4) {
      ShowWonGame(g);
      LevelCmd_Click(g, 4);
      return;
    }
    g.LevelNumber = 1;
  }
  if (g.LevelNumber > g.HighestLevel(g.CurrentSkill))
    g.HighestLevel(g.CurrentSkill) = To16(g.LevelNumber, "HighestLevel");
  g.LevelFile = LevelPath(g, g.CurrentSkill, g.LevelNumber);
  g.SkipTitle = False;
  LoadLevel(g, g.LevelFile);
}

}  // namespace qb
