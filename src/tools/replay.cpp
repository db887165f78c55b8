// The replay of the previous attempt, and replay files.
#include "tools/replay.h"

#include <sstream>

#include "tools/use_tool.h"

namespace qb {

void ReplayMe(Game& g) {
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
      if (kReplayLetters[t] == letter) UseTool(g, t);
  }
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
  while (std::getline(in, line)) {
    ++number;
    if (!line.empty() && line.back() == '\r') line.pop_back();
    const auto first = line.find_first_not_of(" \t");
    if (first == std::string::npos || line[first] == '#') continue;
    std::istringstream fields(line);
    long cycle = -1;
    std::string letters, extra;
    const auto fail = [&](const std::string& why) {
      out.error = "line " + std::to_string(number) + ": " + why;
      return out;
    };
    if (!(fields >> cycle)) return fail("expected a cycle number, found \"" + line + "\"");
    if (cycle < 0 || cycle > kLastReplayTick)
      return fail("cycle " + std::to_string(cycle) + " is not 0 to 2000");
    if (!(fields >> letters)) return fail("no tool letters after the cycle number");
    if (fields >> extra) return fail("unexpected text \"" + extra + "\" after the letters");
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
