// The table of WAV images built into the program, generated at build time from the effects.
#pragma once

#include <cstddef>
#include <cstdint>

namespace qb {

struct EmbeddedSound {
  const char* type;  // resource type: "SOUND" or "CUSTOM"
  int number;
  const uint8_t* bytes;  // a whole RIFF/WAVE file
  size_t size;
};

extern const EmbeddedSound kEmbeddedSounds[];
extern const size_t kEmbeddedSoundCount;

}  // namespace qb
