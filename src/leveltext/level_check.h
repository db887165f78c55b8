// Checking a level file as the game would read it, plus the sanity rules of a playable level.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/level_file.h"
#include "leveltext/level_text.h"

namespace qb::leveltext {

// What makes a level that the game accepts still unplayable or odd: no active entrance, no
// exit door, more needed than characters, a start view that shows squares beyond the level.
// `withNeeded` false leaves out the needed count (the text parser already warns of it).
std::vector<std::string> SanityProblems(const LevelData& d, bool withNeeded = true);

struct CheckResult {
  std::vector<Diagnostic> diagnostics;  // warnings too fail the check
  bool loaded = false;                  // the game would play the level (perhaps cut short)
  LevelData data;                       // when loaded
};

// A binary file read with the game's reader: missing, unsupported, cut short, then sanity.
CheckResult CheckLevelBytes(const std::vector<uint8_t>& bytes);

// A text level: its parse errors and warnings with their lines, then sanity.
CheckResult CheckLevelText(const std::string& text);

}  // namespace qb::leveltext
