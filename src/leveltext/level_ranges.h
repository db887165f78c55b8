// The values the text form of a level can hold: the parser refuses others, and the check of a
// binary level warns of them in the same words.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/level_file.h"

namespace qb::leveltext {

struct ValueRange {
  long long lo;
  long long hi;
  bool Holds(long long v) const { return v >= lo && v <= hi; }
};

inline constexpr ValueRange kNumberRange{1, 20};
inline constexpr ValueRange kCharactersRange{0, 100};
inline constexpr ValueRange kCountRange{0, 32767};  // needed, release interval, a tool's stock
inline constexpr ValueRange kTimeRange{0, 2147483647};
inline constexpr ValueRange kSlotRange{0, 5};
inline constexpr ValueRange kPositionRange{-32768, 32767};
// The 40 by 40 view must stay inside the 120 by 80 grid.
inline constexpr ValueRange kViewColumnRange{0, 80};
inline constexpr ValueRange kViewRowRange{0, 40};

// "needed -5 is not 0 to 32767"
std::string OutOfRange(std::string_view what, std::string_view value, ValueRange range);

// Every value of a read level that the text form cannot hold, each said as OutOfRange says it.
std::vector<std::string> RangeProblems(const LevelData& d);

}  // namespace qb::leveltext
