// The level the benchmarks run: 120 by 80, a hundred characters, ten floors of long corridors
// with walls to turn at and a step, one entrance per floor pair.
#pragma once

#include "support/level_builder.h"

namespace qb::bench {

inline LevelData BusyLevel() {
  std::vector<std::string> rows(80, std::string(120, '.'));
  for (int floor = 0; floor < 10; ++floor) {
    const int y = 7 + floor * 8;
    rows[y] = std::string(120, 'M');
    rows[y - 1][0] = rows[y - 2][0] = 'M';
    rows[y - 1][119] = rows[y - 2][119] = 'M';
    rows[y - 1][60] = '#';  // a step
  }
  LevelData d = test::MakeLevel(rows, 5, 6, 100, 100, 1, 30000);
  for (int j = 0; j < 6; ++j)
    d.Slots[j] = {-1, 0, 0, 5 + 18 * j, static_cast<int16_t>(6 + 8 * j), 0, 0, 0, 0};
  return d;
}

}  // namespace qb::bench
