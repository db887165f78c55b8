// What the game promises about each file it reads from outside, as checks that the fuzz targets
// and the regression tests share.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace qb::fuzz {

// Each check feeds one input through the game's own code path and returns an empty string when
// the input was handled as promised, or what went wrong. A crash or a sanitizer report is a
// failure too; a ProgramFault while a level plays is an expected outcome.

// A binary level file: read; when playable, written and read again unchanged, then loaded into a
// fresh game and played for a few cycles, using tools that the input picks.
std::string CheckLevelFile(const std::vector<uint8_t>& bytes);

// A level text: parsed; when it parses, printed and parsed again to the same level, and the
// compiled file is one the game plays.
std::string CheckLevelText(std::string_view text);

// A replay file: parsed; when it parses, every slot holds replay letters only, writing the slots
// back as replay text gives the same slots, and the replay plays on a small level for a while.
std::string CheckReplay(const std::string& text);

// A settings store filled from the input (one "section/key=value" a line): loaded, every value
// in range, saved, and loaded again without a note and to the same values.
std::string CheckSettings(const std::string& input);

}  // namespace qb::fuzz
