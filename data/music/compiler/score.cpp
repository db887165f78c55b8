// Length and timing of a compiled score.
#include "score.h"

#include <algorithm>

namespace qb::music {

int Score::EndTick() const {
  int end = 0;
  for (const auto& t : tracks) end = std::max(end, t.endTick);
  return end;
}

double Score::SecondsAt(int tick) const {
  double seconds = 0, bpm = 120;
  int from = 0;
  for (const auto& t : tempos) {
    if (t.tick >= tick) break;
    seconds += (t.tick - from) * 60.0 / (bpm * kTicksPerQuarter);
    from = t.tick;
    bpm = t.bpm;
  }
  return seconds + (tick - from) * 60.0 / (bpm * kTicksPerQuarter);
}

}  // namespace qb::music
