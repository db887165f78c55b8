// The player's commands with plain arguments.
#include "play/commands.h"

#include <algorithm>
#include <cmath>

#include "draw/drawing.h"
#include "play/level_commands.h"
#include "play/level_end.h"
#include "play/player_acts.h"
#include "sim/change_leader.h"

namespace qb {
namespace {

// After Pause or Fast, a label still showing "pressed" takes the colour of its state.
void SettleLabel3(Game& g, int index) {
  if (g.ui.Label3Back(index) != kPressed) return;
  const bool on = g.ui.LevelCmdChecked(index);
  g.ui.Label3Back(index) = on ? (index == 0 ? kPauseOn : kFastOn) : kSystemWindow;
}

void ScrollBy(Game& g, int dx, int dy) {
  if (dx != 0) {
    const int v = std::clamp(g.ui.HScrollValue + dx, 0, std::max(g.ui.HScrollMax, 0));
    if (v != g.ui.HScrollValue) HScroll1_Change(g, v);
  }
  if (dy != 0) {
    const int v = std::clamp(g.ui.VScrollValue + dy, 0, std::max(g.ui.VScrollMax, 0));
    if (v != g.ui.VScrollValue) VScroll1_Change(g, v);
  }
}

}  // namespace

void Form_KeyDown(Game& g, int keyCode) {
  if (keyCode < 13 || keyCode > 80) return;
  if (keyCode == KeyEnter)
    g.ui.Label3Back(1) = kPressed;
  else if (keyCode == KeyEscape)
    g.ui.Label7Back = kPressed;
  else if (keyCode == KeyP)
    g.ui.Label3Back(0) = kPressed;
  else if (keyCode >= Key1 && keyCode <= Key8)
    ToolButtonDown(g, keyCode - Key1);
}

void Form_KeyUp(Game& g, int keyCode) {
  if (keyCode < 13 || keyCode > 80) return;
  switch (keyCode) {
    case KeyEnter:
      Label3_MouseUp(g, 1, false);
      break;
    case KeyEscape:
      Label7_MouseUp(g, false);
      break;
    case KeyP:
      Label3_MouseUp(g, 0, false);
      break;
    case KeyLeft:
      ScrollBy(g, -1, 0);
      break;
    case KeyRight:
      ScrollBy(g, 1, 0);
      break;
    case KeyUp:
      ScrollBy(g, 0, -1);
      break;
    case KeyDown:
      ScrollBy(g, 0, 1);
      break;
    default:
      break;
  }
}

void ToolButtonDown(Game& g, int tool) {
  FinishLevel(g, PressTool(g, tool));
}

void ToolButtonUp(Game& g, int tool) {
  FinishLevel(g, ToolReleased(g, tool));
}

LevelEnd ToolReleased(Game& g, int tool) {
  if (tool != ToolBuild && tool != ToolJump) return LevelEnd::None;
  return PressTool(g, tool);
}

void Label3_MouseDown(Game& g, int index, bool rightButton) {
  if (!rightButton) g.ui.Label3Back(index) = kPressed;
}

void Label3_MouseUp(Game& g, int index, bool rightButton) {
  if (rightButton) return;
  LevelCmd_Click(g, index);
  SettleLabel3(g, index);
}

void Label7_MouseDown(Game& g, bool rightButton) {
  if (!rightButton) g.ui.Label7Back = kPressed;
}

void Label7_MouseUp(Game& g, bool rightButton) {
  if (rightButton) return;
  g.ui.Label7Back = kSystemWindow;
  LevelCmd_Click(g, CmdRestart);
}

void OverviewClick(Game& g, double x, double y) {
  const int vx = static_cast<int>(std::floor(x - kViewSize / 2.0));
  const int vy = static_cast<int>(std::floor(y - kViewSize / 2.0));
  const int nx = std::clamp(vx, 0, std::max(g.GridWidth - kViewSize, 0));
  const int ny = std::clamp(vy, 0, std::max<int>(g.GridHeight - kViewSize, 0));
  g.ViewX = nx;
  g.ViewY = To16(ny, "ViewY");
  DrawView(g);
}

void ScrollMe(Game& g, int x, int y, int width, int height) {
  if (!g.ui.Option(OptSmartScrolling)) {
    g.ui.Timer3Enabled = false;
    return;
  }
  bool scrolled = false;
  if (x > width - 300) {
    if (g.ViewX == g.ui.HScrollMax) return;
    g.ViewX += 5;
    if (g.ViewX > g.ui.HScrollMax - 5) g.ViewX = g.ui.HScrollMax;
    scrolled = true;
  }
  if (x < 21) {
    if (g.ViewX == 0) return;
    g.ViewX -= 5;
    if (g.ViewX < 0) g.ViewX = 0;
    scrolled = true;
  }
  if (y < 801) {
    if (g.ViewY == 0) return;
    g.ViewY = Add16(g.ViewY, -4, "ViewY");
    if (g.ViewY < 0) g.ViewY = 0;
    scrolled = true;
  }
  if (y > height - 1600) {
    if (g.ViewY == g.ui.VScrollMax) return;
    g.ViewY = Add16(g.ViewY, 4, "ViewY");
    if (g.ViewY > g.ui.VScrollMax - 4) g.ViewY = To16(g.ui.VScrollMax, "ViewY");
    scrolled = true;
  }
  if (scrolled) {
    DrawView(g);
    g.ui.Timer3Enabled = true;
  } else {
    g.ui.Timer3Enabled = false;
  }
}

}  // namespace qb
