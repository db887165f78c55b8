// Building a block in front of the leader.
#include "sim/build.h"

#include "draw/drawing.h"
#include "sim/spend_tool.h"

namespace qb {

void Build(Game& g) {
  const CharRecord& c = g.Chars(g.Leader);
  const int tx = c.X + c.Dir, ty = c.Y;
  if (tx < 0 || tx > g.GridWidth - 1) {
    g.Building = 0;
    return;
  }
  if (g.Building != 1) return;
  if (g.Grid(tx, ty) == Empty) {
    DrawSquare(g, tx, ty, BuiltBlock);
    SpendTool(g, ToolBuild);
  }
  g.Building = 0;
}

}  // namespace qb
