// What the game and the level check say about a level held in memory, each with its square.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "core/level_file.h"

namespace qb::leveltext {

struct LevelProblem {
  bool refused = false;                       // the game would not play the level
  std::string message;                        // in the loader's or the check's own words
  std::optional<std::pair<int, int>> square;  // the square it names, when it names one
};

// The game's own loader run on `bytes` as the file `name`: its refusal message, or nothing when
// it would play them.
std::optional<std::string> LoaderRefusal(const std::vector<uint8_t>& bytes,
                                         const std::string& name);

// The loader's refusal of the level written as a file, or else every warning the level check
// gives for it.
std::vector<LevelProblem> LevelProblems(const LevelData& d, const std::string& name);

}  // namespace qb::leveltext
