// The shipped levels: all eighty have a solution that wins, and from the fourth Beginner level
// on a level is lost when no tool is used.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "sim_run.h"

namespace qb {
namespace {

namespace fs = std::filesystem;

// The result word of a headless run.
std::string Result(const fs::path& level, const std::optional<std::string>& replay) {
  SimOptions options;
  options.level = level.string();
  options.replay = replay;
  std::ostringstream out, err;
  const SimOutcome outcome = RunSimulation(options, out, err);
  if (outcome.exitStatus != 0) return "error: " + err.str();
  const std::string text = out.str();
  const auto p = text.rfind("{\"result\":\"");
  if (p == std::string::npos) return "no result";
  return text.substr(p + 11, text.find('"', p + 11) - p - 11);
}

TEST(ShippedLevels, EverySolutionWinsAndNoLevelFromBeginnerFourOnIsWonWithoutTools) {
  const char* const tiers[4] = {"Beginner", "Intermediate", "Advanced", "Expert"};
  for (int tier = 0; tier < 4; ++tier)
    for (int n = 1; n <= 20; ++n) {
      const std::string name = tiers[tier] + std::to_string(n);
      const fs::path level = fs::path(QUORBIT_LEVELS_DIR) / (name + ".lvl");
      const fs::path solution = fs::path(QUORBIT_SOLUTIONS_DIR) / (name + ".replay");
      ASSERT_TRUE(fs::exists(level)) << name << ": the level is missing";
      ASSERT_TRUE(fs::exists(solution)) << name << ": its solution is missing";
      std::ostringstream text;
      text << std::ifstream(solution, std::ios::binary).rdbuf();
      EXPECT_EQ(Result(level, text.str()), "won") << name << ": its solution";
      if (tier > 0 || n >= 4) {
        const std::string bare = Result(level, std::nullopt);
        EXPECT_TRUE(bare == "lost" || bare == "timeout") << name << " with no tools: " << bare;
      }
    }
}

}  // namespace
}  // namespace qb
