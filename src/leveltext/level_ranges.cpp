// The values the text form of a level can hold.
#include "leveltext/level_ranges.h"

#include "leveltext/level_legend.h"

namespace qb::leveltext {

std::string OutOfRange(std::string_view what, std::string_view value, ValueRange range) {
  // A number too long for any field is cut, so that a message stays one short line.
  constexpr std::size_t kLongest = 24;
  const std::string shown =
      value.size() > kLongest ? std::string(value.substr(0, kLongest)) + "..." : std::string(value);
  return std::string(what) + " " + shown + " is not " + std::to_string(range.lo) + " to " +
         std::to_string(range.hi);
}

std::vector<std::string> RangeProblems(const LevelData& d) {
  std::vector<std::string> out;
  const auto check = [&out](const std::string& what, long long v, ValueRange range) {
    if (!range.Holds(v)) out.push_back(OutOfRange(what, std::to_string(v), range));
  };
  check("number", d.Number, kNumberRange);
  check("characters", d.CharactersTotal, kCharactersRange);
  check("needed", d.CharactersNeeded, kCountRange);
  check("time", d.TimeLeft, kTimeRange);
  check("release", d.ReleaseInterval, kCountRange);
  for (int t = 0; t < kToolCount; ++t)
    check("tools: " + std::string(ToolName(t)), d.ToolStock[static_cast<std::size_t>(t)],
          kCountRange);
  check("view column", d.StartViewX, kViewColumnRange);
  check("view row", d.StartViewY, kViewRowRange);
  return out;
}

}  // namespace qb::leveltext
