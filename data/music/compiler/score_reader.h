// Compiles the note notation of the music sources into a Score (the notation is described in
// data/music/README.md and at the top of every source).
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "score.h"

namespace qb::music {

struct ScoreResult {
  Score score;
  std::vector<std::string> errors;  // "line N: ..."; the score is unusable when not empty
};

ScoreResult ReadScore(std::string_view text);

}  // namespace qb::music
