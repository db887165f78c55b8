// The single entry through which the leader uses a tool, and the spending of a tool.
#include "tools/use_tool.h"

#include "sim/jump.h"
#include "sim/laser.h"
#include "sim/movement.h"
#include "tools/block.h"
#include "tools/build.h"
#include "tools/change_leader.h"
#include "tools/explode.h"
#include "tools/level_commands.h"

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

void UseTool(Game& g, int tool) {
  if (g.Chars(g.Leader).Out == 0 && tool != ToolChange) return;
  if (g.ToolStock(tool) == 0) return;
  if (!g.ui.Timer1Enabled) LevelCmd_Click(g, 0);
  if (tool == ToolClimb) {
    if (g.ClimbArmed) return;
    SpendTool(g, ToolClimb);
    ColourTool(g, ToolClimb, kToolInUse);
    g.ClimbArmed = True;
    g.Climbing = False;
  }
  if (g.Blocking > 0 || g.JumpStage > 0) return;
  if (tool == ToolSlow && g.Tool5Countdown == 0) {
    SpendTool(g, ToolSlow);
    ColourTool(g, ToolSlow, kToolInUse);
    g.Tool5Countdown = 20;
    g.SlowToggle = True;
  }
  if (g.Lasering > 0) return;
  if (tool == ToolJump && OnGround(g) && g.JumpStage == 0) {
    ColourTool(g, ToolJump, kToolInUse);
    g.JumpStage = 1;
    Jump(g);
  }
  if (tool == ToolBlock && OnGround(g) && g.Blocking == 0) {
    g.Blocking = 1;
    Block(g);
  }
  if (tool == ToolBuild && OnGround(g) && g.Building == 0) {
    g.Building = 1;
    Build(g);
  }
  if (tool == ToolChange) ChangeLeader(g);
  if (tool == ToolBomb && g.Bombing == 0) {
    g.LaserHitX = 0;
    g.BombOwner = g.Leader;
    g.Bombing = 1;
    Explode(g);
  }
  if (tool == ToolLaser) {
    if (!OnGround(g) || g.Lasering > 0 || g.Bombing > 0) return;
    g.Lasering = 1;
    Lazer(g);
  }
}

}  // namespace qb
