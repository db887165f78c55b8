// The Level and Options menu commands as far as they touch the game.
#include "play/level_commands.h"

#include "draw/drawing.h"
#include "level/loader.h"
#include "level/music.h"
#include "play/level_end.h"

namespace qb {
namespace {

void RestartTimer(Game& g) {
  g.ui.Timer1Enabled = true;
  ++g.ui.Timer1Restarts;
}

void Pause(Game& g) {
  if (!g.ui.Timer1Enabled) {
    RestartTimer(g);
    g.ui.LevelCmdChecked(0) = false;
    g.ui.Label3Back(0) = kSystemWindow;
    return;
  }
  g.ui.Timer1Enabled = false;
  g.ui.LevelCmdChecked(0) = true;
  g.ui.Label3Back(0) = kPauseOn;
  if (g.ui.Timer1Interval == 10) LevelCmd_Click(g, CmdFast);
}

void Fast(Game& g) {
  const bool fastNow = g.ui.Timer1Interval != 350;
  g.ui.Timer1Interval = fastNow ? 350 : 10;
  if (g.ui.Timer1Enabled) RestartTimer(g);
  g.ui.LevelCmdChecked(1) = !fastNow;
  g.ui.Label3Back(1) = fastNow ? kSystemWindow : kFastOn;
}

// Stops the attempt and ends its replay where it stopped.
void StopAttempt(Game& g) {
  g.ui.Timer1Enabled = false;
  g.SkipTitle = True;
  g.ReplayLog(g.ReplayTick) += "E";
  for (int t = g.ReplayTick + 1; t <= kLastReplayTick; ++t) g.ReplayLog(t) = "";
  if (!g.ui.Option(OptFastScrolling)) {
    g.pic.Picture1.Clear();
    g.pic.Backing.Clear();
  }
}

void Restart(Game& g) {
  StopAttempt(g);
  if (g.SavedCount >= g.CharactersNeeded) {
    g.SkipTitle = False;
    GoToNextLevel(g);
  } else {
    OpenLevel(g, g.LevelFile);
  }
}

void EndLevel(Game& g) {
  g.ui.Caption = "Quorbit 2";
  g.ui.Timer1Enabled = false;
  g.ui.Timer3Enabled = false;
  g.ui.Frame1Visible = false;
  g.ui.LevelCmdChecked(0) = false;
  StopMusic(g);
}

}  // namespace

void LevelCmd_Click(Game& g, int index) {
  if (!g.ui.Frame1Visible) return;
  switch (index) {
    case CmdPause:
      Pause(g);
      break;
    case CmdFast:
      Fast(g);
      break;
    case CmdRestart:
      Restart(g);
      break;
    case CmdEndLevel:
      EndLevel(g);
      break;
    case CmdNextTrack:
      StopMusic(g);
      NextTrack(g);
      if (g.ui.Option(OptMusic)) PlayTrack(g, g.CurrentTrack);
      break;
    default:
      break;
  }
}

void RestartLevel(Game& g) {
  StopAttempt(g);
  OpenLevel(g, g.LevelFile);
}

void OptionsCmd_Click(Game& g, int index) {
  g.ui.OptionsChecked(index) = !g.ui.OptionsChecked(index);
  if (!g.ui.Frame1Visible) return;
  switch (index) {
    case OptMusic:
      if (g.ui.Option(OptMusic))
        PlayTrack(g, g.CurrentTrack);
      else
        StopMusic(g);
      break;
    case OptFastScrolling:
      g.pic.Picture1.Clear();
      if (!g.ui.Option(OptFastScrolling)) DrawView(g);
      break;
    case OptSmartScrolling:
      if (!g.ui.Option(OptSmartScrolling)) g.ui.Timer3Enabled = false;
      break;
    default:
      break;
  }
}

void PauseForDialog(Game& g) {
  g.ui.Timer3Enabled = false;
  if (g.ui.Timer1Enabled) LevelCmd_Click(g, CmdPause);
}

}  // namespace qb
