// The leader's block: a wall two squares high in front of him, with a flash round him.
#include "sim/block.h"

#include "draw/drawing.h"
#include "sim/spend_tool.h"

namespace qb {
namespace {

template <typename F>
void ForNeighbours(const Game& g, F&& f) {
  const CharRecord& c = g.Chars(g.Leader);
  for (int dy = -1; dy <= 1; ++dy)
    for (int dx = -1; dx <= 1; ++dx) {
      if (dx == 0 && dy == 0) continue;
      const int x = c.X + dx, y = c.Y + dy;
      if (x >= 0 && x < g.GridWidth && y >= 0 && y < g.GridHeight) f(x, y);
    }
}

}  // namespace

void Block(Game& g) {
  if (g.Blocking == 1) {
    DrawChar(g, g.Leader);
    SpendTool(g, ToolBlock);
    ColourTool(g, ToolBlock, kToolInUse);
    const CharRecord& c = g.Chars(g.Leader);
    const int n = c.X + c.Dir;
    for (int row : {c.Y - 0, c.Y - 1})
      if (n >= 0 && n < g.GridWidth && row >= 0 && row < g.GridHeight && g.Grid(n, row) == Empty)
        DrawSquare(g, n, row, BlockSquare);
    ForNeighbours(g, [&](int x, int y) { DrawBlock(g, x, y, g.SquareColour(BlockSquare)); });
    g.Blocking = 2;
    return;
  }
  ForNeighbours(g, [&](int x, int y) { DrawBlock(g, x, y, g.SquareColour(g.Grid(x, y))); });
  ColourTool(g, ToolBlock, kWhite);
  g.Blocking = 0;
}

}  // namespace qb
