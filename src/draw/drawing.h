// Drawing the play view, the overview map and the characters into the picture model.
#pragma once

#include "core/game.h"

namespace qb {

void DrawView(Game& g);
void DrawViewFrame(Game& g, bool show);
void DrawSquare(Game& g, int x, int y, int kind);
void DrawBlock(Game& g, int x, int y, Colour colour);
void DrawChar(Game& g, int index);
// DrawChar in a given colour (the shock's flashes show a character in its own colour).
void DrawCharIn(Game& g, int index, Colour colour);
void EraseChar(Game& g, int index);
// The play view's paint event: without its own image (Fast Scrolling) the view is drawn again.
void Picture1_Paint(Game& g);
// The colour a character is drawn in now.
Colour CharColour(const Game& g, int index);

// Repaints grid square (x, y) in the colour of its kind; squares outside the grid are skipped
// (the animations run with errors ignored).
void RepaintSquare(Game& g, int x, int y);
// DrawBlock for an animation frame: squares outside the grid are skipped.
void PaintIfInGrid(Game& g, int x, int y, Colour colour);

// The scroll bars' change handlers: move the view to the bar's value and redraw.
void HScroll1_Change(Game& g, int value);
void VScroll1_Change(Game& g, int value);

}  // namespace qb
