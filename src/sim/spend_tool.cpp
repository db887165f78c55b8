// Spending a tool and colouring its labels.
#include "sim/spend_tool.h"

namespace qb {

void ColourTool(Game& g, int tool, Colour colour) {
  g.ui.Label1Back(tool) = colour;
  g.ui.Label2Back(tool) = colour;
}

void SpendTool(Game& g, int tool, bool prepend) {
  g.ToolStock(tool) = Add16(g.ToolStock(tool), -1, "ToolStock");
  g.ui.Label2Caption(tool) = g.ToolStock(tool) == 0 ? "" : std::to_string(g.ToolStock(tool));
  if (g.ReplayTick <= kLastReplayTick) {
    std::string& slot = g.ReplayLog(g.ReplayTick);
    const char letter = kReplayLetters[tool];
    slot = prepend ? std::string(1, letter) + slot : slot + letter;
  }
}

}  // namespace qb
