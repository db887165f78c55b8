// The replay of the previous attempt, and replay files.
#include "play/replay.h"

#include <algorithm>
#include <cctype>
#include <string_view>

#include "core/quoted.h"
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

namespace {

// The lines of a text whose lines end in LF, CRLF or CR alone.
std::vector<std::string_view> Lines(std::string_view text) {
  std::vector<std::string_view> lines;
  std::size_t start = 0;
  while (start < text.size()) {
    const std::size_t end = std::min(text.find_first_of("\r\n", start), text.size());
    lines.push_back(text.substr(start, end - start));
    start = end + 1;
    if (end + 1 < text.size() && text[end] == '\r' && text[end + 1] == '\n') ++start;
  }
  return lines;
}

}  // namespace

ReplayFile ParseReplay(const std::string& text) {
  ReplayFile out;
  int number = 0;
  const auto blank = [](char ch) { return ch == ' ' || ch == '\t'; };
  for (const std::string_view line : Lines(text)) {
    ++number;
    if (line.find_first_not_of(" \t") == std::string::npos || line[0] == '#') continue;
    const auto fail = [&](const std::string& why) {
      out.error = "line " + std::to_string(number) + ": " + why;
      return out;
    };
    // <cycle> <letters>: digits, blanks, letters, nothing after but blanks.
    std::size_t i = 0;
    while (i < line.size() && std::isdigit(static_cast<unsigned char>(line[i]))) ++i;
    if (i == 0) return fail("expected a cycle number, found " + Quoted(line));
    const std::string_view digits = line.substr(0, i);
    if (i > 1 && digits[0] == '0')
      return fail("the cycle number " + Quoted(digits) +
                  " starts with a zero; write it as a plain number, 0 to 2000");
    if (i > 4 || std::stoi(std::string(digits)) > kLastReplayTick)
      return fail("cycle " + std::string(digits.substr(0, 12)) + (i > 12 ? "..." : "") +
                  " is not 0 to 2000");
    const int cycle = std::stoi(std::string(digits));
    const std::size_t gap = i;
    while (i < line.size() && blank(line[i])) ++i;
    if (i == line.size()) return fail("no tool letters after the cycle number");
    if (i == gap) return fail("a blank must separate the cycle number from the letters");
    const std::size_t lettersAt = i;
    while (i < line.size() && !blank(line[i])) ++i;
    const std::string_view letters = line.substr(lettersAt, i - lettersAt);
    while (i < line.size() && blank(line[i])) ++i;
    if (i != line.size())
      return fail("unexpected text " + Quoted(line.substr(i)) + " after the letters");
    for (const char ch : letters)
      if (std::string_view("CKBDJRXLE").find(ch) == std::string_view::npos)
        return fail(Quoted(std::string_view(&ch, 1)) +
                    " is not a replay letter (C K B D J R X L E)");
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
