// The player's commands with plain arguments: keys, tool-bar presses, overview clicks, edge
// scrolling. The window turns its events into these calls.
#pragma once

#include "core/game.h"

namespace qb {

enum KeyCode : int {
  KeyEnter = 13,
  KeyEscape = 27,
  KeyLeft = 37,
  KeyUp = 38,
  KeyRight = 39,
  KeyDown = 40,
  KeyP = 80,
  Key1 = 49,
  Key8 = 56,
};

void Form_KeyDown(Game& g, int keyCode);
void Form_KeyUp(Game& g, int keyCode);
// Any button on a tool's icon or labels.
void ToolButtonDown(Game& g, int tool);
void ToolButtonUp(Game& g, int tool);
// What a tool button's release does before the level's end follows: Build and Jump are used
// again, the others do nothing. Returns how the level ended in it, or None.
LevelEnd ToolReleased(Game& g, int tool);
// The status-panel labels: "Pause" (0) and "Fast" (1), and "Restart".
void Label3_MouseDown(Game& g, int index, bool rightButton);
void Label3_MouseUp(Game& g, int index, bool rightButton);
void Label7_MouseDown(Game& g, bool rightButton);
void Label7_MouseUp(Game& g, bool rightButton);
// A button released on the overview map at (x, y) in level squares.
void OverviewClick(Game& g, double x, double y);

// One edge-scroll step for a mouse position in window twips; `width` and `height` are the
// window's outer size in twips.
void ScrollMe(Game& g, int x, int y, int width, int height);

}  // namespace qb
