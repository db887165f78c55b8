// The game's sound effects, by the number of their wave image.
#pragma once

namespace qb {

// Every effect is of resource type "SOUND" but the jump, which is "CUSTOM". There is no 103:
// the breakable-square test could ask for it, and it plays nothing.
enum class Sound : int {
  Shock = 101,
  Bomb = 102,
  Door = 104,
  Laser = 105,
  Lava = 106,
  Die = 107,
  LevelLost = 108,
  Splat = 109,
  Teleport = 110,
  Trap = 111,
  Water = 112,
  LevelWon = 113,
  TierWon = 114,
  Jump = 115,
};

inline const char* SoundType(Sound s) {
  return s == Sound::Jump ? "CUSTOM" : "SOUND";
}

}  // namespace qb
