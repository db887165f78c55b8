// Finds a built-in effect's WAV image by resource type and number.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace qb {

// The whole RIFF/WAVE image of the effect, or an empty span when there is none (for example
// number 103, which the rules may ask for but the game has never had).
std::span<const uint8_t> FindSound(std::string_view type, int number);

}  // namespace qb
