// Printing a LevelData in the text form that the parser reads back.
#include "leveltext/level_legend.h"
#include "leveltext/level_text.h"

namespace qb::leveltext {
namespace {

// Quotes keep a title whose edges are blank, or which holds a '#' or starts with a quote.
std::string TitleValue(const std::string& title) {
  const bool blankEdge = !title.empty() && (title.front() == ' ' || title.front() == '\t' ||
                                            title.back() == ' ' || title.back() == '\t');
  const bool needsQuotes =
      blankEdge || title.find('#') != std::string::npos || (!title.empty() && title.front() == '"');
  // '"' + ..., not "\"" + ...: g++ 12 at -O3 takes a one-letter literal put before a string for an
  // overlapping copy (-Wrestrict). The same goes for the other one-letter prefixes here.
  return needsQuotes ? '"' + Latin1ToUtf8(title) + '"' : Latin1ToUtf8(title);
}

std::string TierValue(int32_t skill) {
  if (skill >= 0 && skill < kTierCount) return std::string(TierName(skill));
  return std::to_string(skill);  // not a tier; the parser says so when it is read back
}

void SlotLine(std::string& out, const char* kind, int slot, int32_t active, int32_t x, int32_t y) {
  if (active == 0 && x == 0 && y == 0) return;
  out += std::string(kind) + " " + std::to_string(slot) + ": " + std::to_string(x) + " " +
         std::to_string(y) + (active == 0 ? " inactive" : "") + "\n";
}

}  // namespace

std::string PrintLevelText(const LevelData& d) {
  std::string out;
  out += "title: " + TitleValue(d.Title) + "\n";
  out += "tier: " + TierValue(d.Skill) + "\n";
  out += "number: " + std::to_string(d.Number) + "\n";
  out += "characters: " + std::to_string(d.CharactersTotal) + "\n";
  out += "needed: " + std::to_string(d.CharactersNeeded) + "\n";
  out += "time: " + std::to_string(d.TimeLeft) + "\n";
  out += "release: " + std::to_string(d.ReleaseInterval) + "\n";
  std::string tools;
  for (int t = 0; t < kToolCount; ++t) {
    const int n = d.ToolStock[static_cast<std::size_t>(t)];
    if (n != 0) tools += ' ' + std::string(ToolName(t)) + '=' + std::to_string(n);
  }
  if (!tools.empty()) out += "tools:" + tools + "\n";
  out += "view: " + std::to_string(d.StartViewX) + " " + std::to_string(d.StartViewY) + "\n";
  for (int j = 0; j < 6; ++j) {
    const LevelSlot& s = d.Slots[static_cast<std::size_t>(j)];
    SlotLine(out, "entrance", j, s.EntranceActive, s.EntranceX, s.EntranceY);
  }
  for (int j = 0; j < 6; ++j) {
    const LevelSlot& s = d.Slots[static_cast<std::size_t>(j)];
    SlotLine(out, "trap", j, s.TrapActive, s.TrapX, s.TrapY);
  }
  for (int j = 0; j < 6; ++j) {
    const LevelSlot& s = d.Slots[static_cast<std::size_t>(j)];
    SlotLine(out, "teleport", j, s.TeleportActive, s.TeleportX, s.TeleportY);
  }
  out += "grid:\n";
  for (int y = 0; y < d.GridHeight; ++y) {
    for (int x = 0; x < d.GridWidth; ++x) {
      const int k = d.Square(x, y);
      out.push_back(k >= 0 && k < kKindCount ? KindChar(k) : '?');
    }
    out += "\n";
  }
  return out;
}

std::string Latin1ToUtf8(const std::string& latin1) {
  std::string out;
  for (char c : latin1) {
    const auto b = static_cast<unsigned char>(c);
    if (b < 0x80) {
      out.push_back(c);
    } else {
      out.push_back(static_cast<char>(0xC0 | (b >> 6)));
      out.push_back(static_cast<char>(0x80 | (b & 0x3F)));
    }
  }
  return out;
}

LevelData Normalized(const LevelData& d) {
  LevelData n = d;
  for (LevelSlot& s : n.Slots) {
    s.EntranceActive = s.EntranceActive != 0 ? -1 : 0;
    s.TrapActive = s.TrapActive != 0 ? -1 : 0;
    s.TeleportActive = static_cast<int16_t>(s.TeleportActive != 0 ? -1 : 0);
  }
  return n;
}

}  // namespace qb::leveltext
