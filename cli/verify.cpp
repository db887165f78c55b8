// quorbit-sim --verify: plays every replay of a folder against its level.
#include "verify.h"

#include <algorithm>
#include <filesystem>
#include <ostream>
#include <sstream>
#include <vector>

#include "core/file_read.h"
#include "core/level_file.h"
#include "core/sha256.h"
#include "file_host.h"
#include "play/replay.h"
#include "play/replay_header.h"
#include "sim_run.h"

namespace qb {
namespace {

namespace fs = std::filesystem;

std::string Text(const std::vector<uint8_t>& bytes) {
  return {bytes.begin(), bytes.end()};
}

// The verdict on one replay: the word first ("won" only when it wins), then the details.
std::string Verdict(const fs::path& levelsDir, const fs::path& replayPath) {
  const FileRead replayFile = ReadSmallFile(replayPath.string(), kMaxTextFileBytes);
  if (!replayFile.bytes) return "bad file: cannot be read: " + replayFile.error;
  const std::string replay = Text(*replayFile.bytes);
  if (const ReplayFile parsed = ParseReplay(replay); !parsed.error.empty())
    return "bad file: " + parsed.error;
  const ReplayHeader header = ReadReplayHeader(replay);
  const fs::path level =
      levelsDir / (header.level.empty() ? replayPath.stem().string() + ".lvl" : header.level);
  const FileRead levelFile = ReadSmallFile(level.string(), kMaxLevelFileBytes);
  if (!levelFile.bytes) return "missing level " + level.string();
  if (!header.sha256.empty() && Sha256Hex(Text(*levelFile.bytes)) != header.sha256)
    return "SHA-256 differs: " + level.string() + " is not the level it was recorded on";

  SimOptions options;
  options.level = level.string();
  options.replay = replay;
  std::ostringstream lines, err;
  if (const SimOutcome run = RunSimulation(options, lines, err); run.exitStatus != 0) {
    std::string why = err.str();
    why.erase(std::remove(why.begin(), why.end(), '\n'), why.end());
    return "bad file: " + why;
  }
  // The result line: {"result":"won","cycles":C,"saved":S,"needed":N,"total":T}
  std::string result = lines.str();
  result.pop_back();
  result = result.substr(result.rfind('\n') + 1);
  const auto field = [&](const std::string& name) {
    const auto at = result.find("\"" + name + "\":") + name.size() + 3;
    return result.substr(at, result.find_first_of(",}", at) - at);
  };
  std::string word = field("result");
  word = word.substr(1, word.size() - 2);
  return word + " (" + field("saved") + " saved of " + field("needed") + ", " + field("cycles") +
         " cycles)";
}

}  // namespace

bool VerifyReplays(const std::string& levelsDir, const std::string& replaysDir, std::ostream& out) {
  std::vector<fs::path> replays;
  std::error_code ec;
  for (const auto& entry : fs::directory_iterator(replaysDir, ec))
    if (entry.path().extension() == ".replay") replays.push_back(entry.path());
  if (ec) {
    out << replaysDir << ": cannot read the folder: " << ec.message() << "\n";
    return false;
  }
  std::sort(replays.begin(), replays.end());
  int won = 0;
  for (const fs::path& replay : replays) {
    const std::string verdict = Verdict(levelsDir, replay);
    out << replay.filename().string() << ": " << verdict << "\n";
    if (verdict.rfind("won ", 0) == 0) ++won;
  }
  out << won << " of " << replays.size() << " replays win\n";
  return !replays.empty() && won == static_cast<int>(replays.size());
}

}  // namespace qb
