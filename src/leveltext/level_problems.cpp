// What the game and the level check say about a level held in memory, each with its square.
#include "leveltext/level_problems.h"

#include <cstdio>
#include <memory>

#include "core/game.h"
#include "core/silent_host.h"
#include "level/loader.h"
#include "leveltext/level_check.h"

namespace qb::leveltext {
namespace {

// Hands the loader the level's bytes as if they were the file, and shows and plays nothing.
class BytesHost : public SilentHost {
 public:
  explicit BytesHost(const std::vector<uint8_t>& bytes) : bytes_(bytes) {}
  FileRead ReadFile(const std::string&) override { return {bytes_, ""}; }

 private:
  const std::vector<uint8_t>& bytes_;
};

// The messages name a square as "(x, y)"; the first such pair is the place to show.
std::optional<std::pair<int, int>> NamedSquare(const std::string& message) {
  for (std::size_t at = message.find('('); at != std::string::npos;
       at = message.find('(', at + 1)) {
    int x = 0, y = 0;
    char close = 0;
    if (std::sscanf(message.c_str() + at, "(%6d, %6d%c", &x, &y, &close) == 3 && close == ')')
      return std::make_pair(x, y);
  }
  return std::nullopt;
}

}  // namespace

std::optional<std::string> LoaderRefusal(const std::vector<uint8_t>& bytes,
                                         const std::string& name) {
  BytesHost host(bytes);
  auto game = std::make_unique<Game>(host);
  InitTables(*game);
  game->SkipTitle = True;
  game->Drawing = false;
  const LoadOutcome outcome = LoadLevel(*game, name);
  if (outcome.Loaded()) return std::nullopt;
  return outcome.message;
}

std::vector<LevelProblem> LevelProblems(const LevelData& d, const std::string& name) {
  const std::vector<uint8_t> bytes = WriteLevel(d);
  if (auto refusal = LoaderRefusal(bytes, name)) {
    // The loader names the file; the square it names is in the reader's reason after it.
    const auto reason = refusal->find(": ");
    return {{true, *refusal,
             NamedSquare(reason == std::string::npos ? *refusal : refusal->substr(reason))}};
  }
  std::vector<LevelProblem> out;
  for (const Diagnostic& diag : CheckLevelBytes(bytes).diagnostics)
    out.push_back({false, diag.message, NamedSquare(diag.message)});
  return out;
}

}  // namespace qb::leveltext
