// The "#" header of a saved replay.
#include "play/replay_header.h"

#include <algorithm>
#include <sstream>

#include "core/sha256.h"

namespace qb {
namespace {

std::string BaseName(const std::string& path) {
  const auto slash = path.find_last_of("/\\");
  return slash == std::string::npos ? path : path.substr(slash + 1);
}

}  // namespace

std::string FormatReplayFile(const ReplayHeader& h, const std::string& replayText) {
  std::ostringstream out;
  out << "# Quorbit 2 replay\n"
      << "# level: " << h.level << "\n"
      << "# sha256: " << h.sha256 << "\n"
      << "# title: " << h.title << "\n"
      << "# result: " << h.result << ", " << h.saved << " saved of " << h.needed << " needed, "
      << h.cycles << " cycles\n"
      << replayText;
  return out.str();
}

ReplayHeader ReadReplayHeader(const std::string& text) {
  ReplayHeader h;
  std::istringstream in(text);
  std::string line;
  while (std::getline(in, line)) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (line.rfind("# ", 0) != 0) continue;
    const auto colon = line.find(": ");
    if (colon == std::string::npos) continue;
    const std::string key = line.substr(2, colon - 2), value = line.substr(colon + 2);
    if (key == "level") {
      h.level = value;
    } else if (key == "sha256") {
      h.sha256 = value;
    } else if (key == "title") {
      h.title = value;
    } else if (key == "result") {
      std::istringstream r(value);
      std::getline(r, h.result, ',');
      std::string word;
      r >> h.saved >> word >> word >> h.needed >> word >> h.cycles;
      if (!r) h.saved = h.needed = h.cycles = 0;
    }
  }
  return h;
}

std::string AttemptReplay(const Game& g) {
  std::string out;
  const int last = g.ReplayPlaying ? g.ReplayTick - 1 : g.ReplayTick;
  for (int t = 0; t <= last; ++t) {
    std::string letters = g.ReplayLog(t);
    std::erase(letters, 'E');
    if (!letters.empty()) out += std::to_string(t) + " " + letters + "\n";
  }
  return out;
}

ReplayHeader AttemptHeader(const Game& g, LevelEnd end) {
  ReplayHeader h;
  h.level = BaseName(g.LevelFile);
  const FileRead file = g.host->ReadFile(g.LevelFile);
  h.sha256 = Sha256Hex(file.bytes ? std::string(file.bytes->begin(), file.bytes->end()) : "");
  h.title = g.LevelTitle;
  std::replace_if(
      h.title.begin(), h.title.end(), [](char c) { return c == '\n' || c == '\r'; }, ' ');
  h.result = ResultWord(end);
  h.saved = g.SavedCount;
  h.needed = g.CharactersNeeded;
  h.cycles = g.attempt.cycles;
  return h;
}

void KeepFinishedAttempt(Game& g, LevelEnd end) {
  const std::string replay = AttemptReplay(g);
  FinishedAttempt& f = g.lastFinished;
  ++f.count;
  f.replay = FormatReplayFile(AttemptHeader(g, end), replay);
  f.level = BaseName(g.LevelFile);
  f.won = end == LevelEnd::Won;
  f.saved = g.SavedCount;
  f.cycles = g.attempt.cycles;
  f.tools = static_cast<int32_t>(
      std::count_if(replay.begin(), replay.end(), [](char c) { return c >= 'A' && c <= 'Z'; }));
}

}  // namespace qb
