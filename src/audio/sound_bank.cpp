// Looks effects up in the table generated from data/sounds/effects.txt.
#include "audio/sound_bank.h"

#include "audio/embedded_sounds.h"

namespace qb {

std::span<const uint8_t> FindSound(std::string_view type, int number) {
  for (size_t i = 0; i < kEmbeddedSoundCount; ++i) {
    const EmbeddedSound& s = kEmbeddedSounds[i];
    if (s.number == number && type == s.type) return {s.bytes, s.size};
  }
  return {};
}

}  // namespace qb
