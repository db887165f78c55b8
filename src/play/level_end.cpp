// What follows the end of a level: the result screen, then the next level or the same again.
#include "play/level_end.h"

#include "level/loader.h"
#include "level/screens.h"
#include "play/level_commands.h"
#include "play/replay_header.h"

namespace qb {

void FinishLevel(Game& g, LevelEnd end) {
  switch (end) {
    case LevelEnd::Won:
      GoToNextLevel(g);
      break;
    case LevelEnd::Lost:
      KeepFinishedAttempt(g, end);
      ShowLooseLevel(g);
      LevelCmd_Click(g, CmdRestart);
      break;
    case LevelEnd::Timeout:
      KeepFinishedAttempt(g, end);
      ShowLooseLevel(g);
      OpenLevel(g, g.LevelFile);
      break;
    case LevelEnd::None:
      break;
  }
}

void GoToNextLevel(Game& g) {
  KeepFinishedAttempt(g, LevelEnd::Won);
  ShowWinLevel(g);
  g.LevelNumber = Add32(g.LevelNumber, 1, "LevelNumber");
  if (g.LevelNumber == 21) {
    g.CurrentSkill = Add32(g.CurrentSkill, 1, "CurrentSkill");
    if (g.CurrentSkill == 4) {
      ShowWonGame(g);
      LevelCmd_Click(g, CmdEndLevel);
      return;
    }
    g.LevelNumber = 1;
  }
  if (g.LevelNumber > g.HighestLevel(g.CurrentSkill))
    g.HighestLevel(g.CurrentSkill) = To16(g.LevelNumber, "HighestLevel");
  g.LevelFile = LevelPath(g, g.CurrentSkill, g.LevelNumber);
  g.SkipTitle = False;
  OpenLevel(g, g.LevelFile);
}

}  // namespace qb
