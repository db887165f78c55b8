// Checking a level file as the game would read it, plus the sanity rules of a playable level.
#include "leveltext/level_check.h"

#include <algorithm>

#include "leveltext/level_ranges.h"

namespace qb::leveltext {
namespace {

constexpr int kViewSize = 40;
constexpr int kExitDoor = 16;

void AddSanity(CheckResult& r, bool withNeeded) {
  for (std::string& s : SanityProblems(r.data, withNeeded))
    r.diagnostics.push_back({0, true, std::move(s)});
}

}  // namespace

std::vector<std::string> SanityProblems(const LevelData& d, bool withNeeded) {
  std::vector<std::string> out;
  const bool entrance = std::any_of(d.Slots.begin(), d.Slots.end(),
                                    [](const LevelSlot& s) { return s.EntranceActive != 0; });
  if (!entrance) out.push_back("no active entrance: nobody is ever released");
  if (std::find(d.Squares.begin(), d.Squares.end(), kExitDoor) == d.Squares.end())
    out.push_back("no exit door (D) in the grid");
  if (withNeeded && d.CharactersNeeded > d.CharactersTotal)
    out.push_back("needed (" + std::to_string(d.CharactersNeeded) + ") is more than characters (" +
                  std::to_string(d.CharactersTotal) + "): the level cannot be won");
  // The view never scrolls beyond the level, so a start view there shows squares out of play.
  const int maxX = std::max(d.GridWidth - kViewSize, 0);
  const int maxY = std::max(d.GridHeight - kViewSize, 0);
  if (d.StartViewX > maxX || d.StartViewY > maxY)
    out.push_back("the start view (" + std::to_string(d.StartViewX) + ", " +
                  std::to_string(d.StartViewY) + ") lies beyond the level: at most (" +
                  std::to_string(maxX) + ", " + std::to_string(maxY) + ") for a " +
                  std::to_string(d.GridWidth) + " by " + std::to_string(d.GridHeight) + " level");
  return out;
}

CheckResult CheckLevelBytes(const std::vector<uint8_t>& bytes) {
  CheckResult r;
  const LevelRead read = ReadLevel(bytes);
  switch (read.status) {
    case ReadStatus::Missing:
      r.diagnostics.push_back({0, false, "This level does not exist! (" + read.problem + ")"});
      return r;
    case ReadStatus::Unsupported:
      r.diagnostics.push_back({0, false, "the game cannot play it: " + read.problem});
      return r;
    case ReadStatus::Ok:
      break;
  }
  r.loaded = true;
  r.data = read.data;
  if (!read.shortAt.empty())
    r.diagnostics.push_back({0, false,
                             "cut short: the file ends in the " + read.shortAt +
                                 " (the game plays it with the rest as 0 or Empty)"});
  // The game plays such values, but the text form cannot hold them: a level made by hand.
  for (std::string& s : RangeProblems(r.data)) r.diagnostics.push_back({0, true, std::move(s)});
  AddSanity(r, true);
  return r;
}

CheckResult CheckLevelText(const std::string& text) {
  ParsedLevel parsed = ParseLevelText(text);
  CheckResult r;
  r.diagnostics = parsed.diagnostics;
  if (!parsed.ok()) return r;
  r.loaded = true;
  r.data = std::move(parsed.data);
  AddSanity(r, false);
  return r;
}

}  // namespace qb::leveltext
