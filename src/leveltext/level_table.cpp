// A Markdown table that sums up levels, one row each.
#include "leveltext/level_table.h"

#include <algorithm>

#include "leveltext/level_legend.h"
#include "leveltext/level_text.h"

namespace qb::leveltext {
namespace {

constexpr int kMarker1 = 1;
constexpr int kMarker12 = 12;

// A pipe would end the cell early.
std::string Cell(const std::string& latin1) {
  std::string out;
  for (char c : Latin1ToUtf8(latin1)) {
    if (c == '|') out += '\\';
    out.push_back(c);
  }
  return out;
}

std::string Count(int n, const char* one, const char* many) {
  return std::to_string(n) + " " + (n == 1 ? one : many);
}

}  // namespace

std::string TableHeader() {
  return "| Tier | No. | Title | Size | Characters | Needed | Time | Release | Tools | Elements |\n"
         "|---|---:|---|---|---:|---:|---:|---:|---|---|\n";
}

std::string StockSummary(const LevelData& d) {
  std::string out;
  for (int t = 0; t < kToolCount; ++t) {
    const int n = d.ToolStock[static_cast<std::size_t>(t)];
    if (n == 0) continue;
    if (!out.empty()) out += ", ";
    out += std::string(ToolName(t)) + " " + std::to_string(n);
  }
  return out.empty() ? "none" : out;
}

std::string ElementSummary(const LevelData& d) {
  std::string kinds;
  for (int k = 1; k < kKindCount; ++k) {
    if (k == kMarker1 || k == kMarker12) continue;  // cleared when the level loads
    if (std::find(d.Squares.begin(), d.Squares.end(), k) == d.Squares.end()) continue;
    if (!kinds.empty()) kinds += ", ";
    kinds += KindName(k);
  }
  int entrances = 0, traps = 0, teleports = 0;
  for (const LevelSlot& s : d.Slots) {
    entrances += s.EntranceActive != 0;
    traps += s.TrapActive != 0;
    teleports += s.TeleportActive != 0;
  }
  std::string objects = Count(entrances, "entrance", "entrances");
  if (traps) objects += ", " + Count(traps, "trap", "traps");
  if (teleports) objects += ", " + Count(teleports, "teleport", "teleports");
  return kinds.empty() ? objects : kinds + "; " + objects;
}

std::string TableRow(const LevelData& d) {
  const std::string tier =
      d.Skill >= 0 && d.Skill < kTierCount ? std::string(TierName(d.Skill)) : "?";
  return "| " + tier + " | " + std::to_string(d.Number) + " | " + Cell(d.Title) + " | " +
         std::to_string(d.GridWidth) + "x" + std::to_string(d.GridHeight) + " | " +
         std::to_string(d.CharactersTotal) + " | " + std::to_string(d.CharactersNeeded) + " | " +
         std::to_string(d.TimeLeft) + " | " + std::to_string(d.ReleaseInterval) + " | " +
         StockSummary(d) + " | " + ElementSummary(d) + " |\n";
}

}  // namespace qb::leveltext
