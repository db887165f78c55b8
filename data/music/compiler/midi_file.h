// Writes a Score as a Standard MIDI File, format 1: a conductor track, then one track per part.
#pragma once

#include <cstdint>
#include <vector>

#include "score.h"

namespace qb::music {

std::vector<uint8_t> WriteMidiFile(const Score& score);

}  // namespace qb::music
