// The game state of one game: grid, characters, counters, tools, placed objects, replay, music.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "core/checked.h"
#include "core/colours.h"
#include "core/squares.h"

namespace qb {

// One character: thirteen 16-bit fields, in this order.
struct CharRecord {
  int16_t FallCount = 0;
  int16_t Dir = 1;
  int16_t Out = 0;
  int16_t X = 0;
  int16_t Y = 0;
  int16_t CrumblePending = 0;
  int16_t CrumbleX = 0;
  int16_t CrumbleY = 0;
  int16_t Splatted = 0;
  int16_t Splashed = 0;
  int16_t Shocked = 0;
  int16_t Trapped = 0;
  int16_t Teleporting = 0;
  bool operator==(const CharRecord&) const = default;
};

inline constexpr int kMaxChars = 100;
inline constexpr int kSlots = 6;
inline constexpr int kReplaySlots = 2001;  // indices 0 to 2000
inline constexpr int kLastReplayTick = 2000;

// Everything the rules read and write. Variant-typed counters of the level file are held as
// 32-bit whole numbers; the loader turns every stored variant into one.
struct GameState {
  GridTable Grid;
  int16_t GridWidth = 0;
  int32_t GridHeight = 0;
  Table<Colour, kKindCount> SquareColour{"SquareColour"};

  Table<CharRecord, kMaxChars> Chars{"Chars"};
  int32_t CharactersTotal = 0;
  int32_t CharactersReleased = 0;
  int16_t CharactersNeeded = 0;
  int16_t SavedCount = 0;
  int16_t Leader = 0;
  Colour CrowdColour = kCrowdColour;
  Table<Colour, kMaxChars + 1> SplashColour{"SplashColour"};

  Table<int16_t, kSlots> EntranceActive{"EntranceActive"};
  Table<int32_t, kSlots> EntranceX{"EntranceX"};
  Table<int16_t, kSlots> EntranceY{"EntranceY"};
  Table<int16_t, kSlots> TrapActive{"TrapActive"};
  Table<int32_t, kSlots> TrapX{"TrapX"};
  Table<int16_t, kSlots> TrapY{"TrapY"};
  Table<int16_t, kSlots> TrapSprung{"TrapSprung"};
  Table<int16_t, kSlots> TeleportActive{"TeleportActive"};
  Table<int32_t, kSlots> TeleportX{"TeleportX"};
  Table<int16_t, kSlots> TeleportY{"TeleportY"};
  int16_t NextEntrance = -1;
  int16_t ReleaseInterval = 0;
  int32_t ReleaseTimer = 0;

  Table<int16_t, kToolCount> ToolStock{"ToolStock"};
  int16_t Blocking = 0;
  int16_t Building = 0;
  int16_t Bombing = 0;
  int16_t JumpStage = 0;
  int16_t Lasering = 0;
  int16_t LaserHitX = 0;
  int16_t LaserHitY = 0;
  int16_t BombOwner = 0;
  int16_t ClimbArmed = False;
  int16_t Climbing = False;
  int16_t Floating = False;
  int16_t Tool5Countdown = 0;
  int16_t SlowToggle = False;
  int16_t TimerHalfTick = False;

  int32_t CurrentSkill = 0;
  int32_t LevelNumber = 0;
  std::string LevelFile;
  std::string LevelTitle;
  std::string LevelName;
  int32_t TimeLeft = 0;
  Table<int16_t, 4> HighestLevel{"HighestLevel"};
  Table<std::string, 4> SkillName{"SkillName"};
  int16_t SkipTitle = False;

  int32_t ViewX = 0;
  int16_t ViewY = 0;
  int32_t StartViewX = 0;
  int16_t StartViewY = 0;
  int16_t SettingUp = False;

  Table<std::string, kReplaySlots> ReplayLog{"ReplayLog"};
  int16_t ReplayTick = 0;
  int16_t ReplayPlaying = False;

  std::string MusicState = "Stopped";
  Table<std::string, 10> TrackNames{"TrackNames"};
  int16_t CurrentTrack = 0;

  bool operator==(const GameState&) const = default;
};

}  // namespace qb
