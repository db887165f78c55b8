// The single entry through which the leader uses a tool.
#include "play/use_tool.h"

#include "play/level_commands.h"
#include "sim/block.h"
#include "sim/build.h"
#include "sim/change_leader.h"
#include "sim/explode.h"
#include "sim/jump.h"
#include "sim/laser.h"
#include "sim/movement.h"
#include "sim/spend_tool.h"

namespace qb {

LevelEnd UseTool(Game& g, int tool) {
  if (g.Chars(g.Leader).Out == 0 && tool != ToolChange) return LevelEnd::None;
  if (g.ToolStock(tool) == 0) return LevelEnd::None;
  if (!g.ui.Timer1Enabled && !g.ui.StayPausedForTools) LevelCmd_Click(g, CmdPause);
  if (tool == ToolClimb) {
    if (g.ClimbArmed) return LevelEnd::None;
    SpendTool(g, ToolClimb);
    ColourTool(g, ToolClimb, kToolInUse);
    g.ClimbArmed = True;
    g.Climbing = False;
  }
  if (g.Blocking > 0 || g.JumpStage > 0) return LevelEnd::None;
  if (tool == ToolSlow && g.Tool5Countdown == 0) {
    SpendTool(g, ToolSlow);
    ColourTool(g, ToolSlow, kToolInUse);
    g.Tool5Countdown = 20;
    g.SlowToggle = True;
  }
  if (g.Lasering > 0) return LevelEnd::None;
  if (tool == ToolJump && OnGround(g) && g.JumpStage == 0) {
    ColourTool(g, ToolJump, kToolInUse);
    g.JumpStage = 1;
    if (const LevelEnd end = Jump(g).end; Ended(end)) return end;
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
    if (const LevelEnd end = Explode(g); Ended(end)) return end;
  }
  if (tool == ToolLaser) {
    if (!OnGround(g) || g.Lasering > 0 || g.Bombing > 0) return LevelEnd::None;
    g.Lasering = 1;
    return Lazer(g);
  }
  return LevelEnd::None;
}

}  // namespace qb
