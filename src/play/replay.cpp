// The replay of the previous attempt, and replay files.
#include "play/replay.h"

#include <cctype>
#include <sstream>

#include "play/use_tool.h"

namespace qb {

LevelEnd ReplayMe(Game& g) {
  const std::string s = g.ReplayLog(g.ReplayTick);
  g.ReplayLog(g.ReplayTick) = "";
  for (char letter : s) {
    if (letter == 'E') {
      g.ReplayPlaying = False;
      g.ui.Label8Visible = false;
      g.ReplayLog(g.ReplayTick) = "";
      continue;
    }
    for (int t = 0; t < kToolCount; ++t)
      if (kReplayLetters[t] == letter)
        if (const LevelEnd end = UseTool(g, t); Ended(end)) return end;
  }
  return LevelEnd::None;
}

void Label8_Click(Game& g) {
  g.ReplayPlaying = False;
  for (int t = g.ReplayTick + 1; t <= kLastReplayTick; ++t) g.ReplayLog(t) = "";
  g.ui.Label8Visible = false;
}

ReplayFile ParseReplay(const std::string& text) {
  ReplayFile out;
  std::istringstream in(text);
  std::string line;
  int number = 0;
  const auto blank = [](char ch) { return ch == ' ' || ch == '\t'; };
  while (std::getline(in, line)) {
    ++number;
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (line.find_first_not_of(" \t") == std::string::npos || line[0] == '#') continue;
    const auto fail = [&](const std::string& why) {
      out.error = "line " + std::to_string(number) + ": " + why;
      return out;
    };
    // <cycle> <letters>: digits, blanks, letters, nothing after but blanks.
    std::size_t i = 0;
    while (i < line.size() && std::isdigit(static_cast<unsigned char>(line[i]))) ++i;
    if (i == 0) return fail("expected a cycle number, found \"" + line + "\"");
    if (i > 4 || std::stoi(line.substr(0, i)) > kLastReplayTick)
      return fail("cycle " + line.substr(0, i) + " is not 0 to 2000");
    const int cycle = std::stoi(line.substr(0, i));
    const std::size_t gap = i;
    while (i < line.size() && blank(line[i])) ++i;
    if (i == line.size()) return fail("no tool letters after the cycle number");
    if (i == gap) return fail("a blank must separate the cycle number from the letters");
    const std::size_t lettersAt = i;
    while (i < line.size() && !blank(line[i])) ++i;
    const std::string letters = line.substr(lettersAt, i - lettersAt);
    while (i < line.size() && blank(line[i])) ++i;
    if (i != line.size())
      return fail("unexpected text \"" + line.substr(i) + "\" after the letters");
    for (char ch : letters)
      if (std::string("CKBDJRXLE").find(ch) == std::string::npos)
        return fail(std::string("'") + ch + "' is not a replay letter (C K B D J R X L E)");
    out.slots[static_cast<std::size_t>(cycle)] += letters;
  }
  return out;
}

std::string FormatReplay(const Game& g) {
  std::string out;
  for (int t = 0; t <= kLastReplayTick; ++t)
    if (!g.ReplayLog(t).empty()) out += std::to_string(t) + " " + g.ReplayLog(t) + "\n";
  return out;
}

}  // namespace qb
