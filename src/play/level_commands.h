// The Level and Options menu commands as far as they touch the game.
#pragma once

#include "core/game.h"

namespace qb {

// 0 Pause, 1 Fast, 3 Restart Level (or Win Level), 4 End Level, 6 Next Track.
void LevelCmd_Click(Game& g, int index);
// Loads the level again from its file, as Restart Level does while too few are saved: the
// attempt so far is kept in the replay log, ended where it stopped.
void RestartLevel(Game& g);
// Toggles option `index` and applies it.
void OptionsCmd_Click(Game& g, int index);
// What the Game and Help menus do before their dialog: edge scrolling off, a running game paused.
void PauseForDialog(Game& g);

}  // namespace qb
