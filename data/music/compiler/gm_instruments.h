// The 128 General MIDI instruments by name, so that scores can say "trumpet" instead of 56.
#pragma once

#include <optional>
#include <string_view>

namespace qb::music {

// The program number (0..127) of a name such as "acoustic_grand_piano", or nothing.
std::optional<int> InstrumentProgram(std::string_view name);

}  // namespace qb::music
