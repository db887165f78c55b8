// Passing the leader role to the next character still in play.
#include "sim/change_leader.h"

#include <algorithm>

#include "draw/drawing.h"
#include "sim/spend_tool.h"

namespace qb {

void MoveViewTo(Game& g, int viewX, int viewY) {
  viewX = std::clamp(viewX, 0, std::max(g.ui.HScrollMax, 0));
  viewY = std::clamp(viewY, 0, std::max(g.ui.VScrollMax, 0));
  if (viewX == g.ViewX && viewY == g.ViewY) return;
  g.ViewX = viewX;
  g.ViewY = To16(viewY, "ViewY");
  DrawView(g);
}

void ChangeLeader(Game& g) {
  int present = 0;
  for (int i = 0; i < g.CharactersTotal; ++i)
    if (g.Chars(i).Out) ++present;
  if (present <= 1) return;

  g.Tool5Countdown = 0;
  ColourTool(g, ToolClimb, kWhite);
  g.Climbing = False;
  g.ClimbArmed = False;
  ColourTool(g, ToolSlow, kSystemWindow);

  const int old = g.Leader;
  int next = old;
  do {
    ++next;
    if (next == g.CharactersTotal) next = 0;
  } while (!g.Chars(next).Out && next != old);
  g.Leader = To16(next, "Leader");

  if (g.Chars(old).Out) DrawChar(g, old);
  DrawChar(g, g.Leader);

  if (g.ui.Option(OptShowChange)) {
    const CharRecord& c = g.Chars(g.Leader);
    const int off = c.Dir == 1 ? 16 : 20;
    MoveViewTo(g, c.X - off, c.Y - off);
  }
  SpendTool(g, ToolChange);
}

}  // namespace qb
