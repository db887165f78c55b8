// The square kinds of the grid and the tool numbers.
#pragma once

#include <cstdint>

namespace qb {

enum Kind : int16_t {
  Empty = 0,
  Marker1 = 1,
  SoftWall = 2,
  BuiltBlock = 3,
  BlockSquare = 4,
  SoftWall2 = 5,
  BombWall = 6,
  BombWall2 = 7,
  MetalWall = 8,
  MetalWall2 = 9,
  Water = 10,
  Lava = 11,
  Marker12 = 12,
  CrumbleWall = 13,
  CrumbleWall2 = 14,
  ElectricWall = 15,
  ExitDoor = 16,
  TeleportSquare = 17,  // "Teleport": the name is taken by the routine
};
inline constexpr int kKindCount = 18;

inline bool IsCrumble(int k) {
  return k == CrumbleWall || k == CrumbleWall2;
}

enum Tool : int16_t {
  ToolClimb = 0,
  ToolBlock = 1,
  ToolBuild = 2,
  ToolChange = 3,
  ToolJump = 4,
  ToolSlow = 5,
  ToolBomb = 6,
  ToolLaser = 7,
};
inline constexpr int kToolCount = 8;

// The letter the replay log records for each tool, indexed by tool number.
inline constexpr char kReplayLetters[kToolCount + 1] = "CKBDJRXL";

// Booleans of the state: True is -1, False is 0.
inline constexpr int16_t True = -1;
inline constexpr int16_t False = 0;

}  // namespace qb
