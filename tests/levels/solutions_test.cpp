// The shipped levels: all eighty exist, each solution wins its level, and from the fourth
// Beginner level on a level is lost when no tool is used.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "sim_run.h"

namespace qb {
namespace {

namespace fs = std::filesystem;

const char* const kTiers[4] = {"Beginner", "Intermediate", "Advanced", "Expert"};

std::string ReadText(const fs::path& p) {
  std::ifstream in(p, std::ios::binary);
  std::ostringstream s;
  s << in.rdbuf();
  return s.str();
}

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

struct Shipped {
  std::string name;
  int tier, number;
};

std::vector<Shipped> AllLevels() {
  std::vector<Shipped> all;
  for (int t = 0; t < 4; ++t)
    for (int n = 1; n <= 20; ++n) all.push_back({kTiers[t] + std::to_string(n), t, n});
  return all;
}

TEST(ShippedLevels, AllEightyAreThereWithASolution) {
  for (const Shipped& s : AllLevels()) {
    EXPECT_TRUE(fs::exists(fs::path(QUORBIT_LEVELS_DIR) / (s.name + ".lvl"))) << s.name;
    EXPECT_TRUE(fs::exists(fs::path(QUORBIT_SOLUTIONS_DIR) / (s.name + ".replay"))) << s.name;
  }
}

TEST(ShippedLevels, EverySolutionWinsAndNoLevelAfterTheThirdIsWonWithoutTools) {
  for (const Shipped& s : AllLevels()) {
    const fs::path level = fs::path(QUORBIT_LEVELS_DIR) / (s.name + ".lvl");
    const fs::path solution = fs::path(QUORBIT_SOLUTIONS_DIR) / (s.name + ".replay");
    if (!fs::exists(level) || !fs::exists(solution)) continue;
    EXPECT_EQ(Result(level, ReadText(solution)), "won") << s.name << ": its solution";
    if (s.tier > 0 || s.number >= 4) {
      const std::string bare = Result(level, std::nullopt);
      EXPECT_TRUE(bare == "lost" || bare == "timeout") << s.name << " with no tools: " << bare;
    }
  }
}

// A run recorded while its solution plays, replayed, gives the same trace cycle for cycle.
TEST(ShippedLevels, ReplayingARecordedRunGivesTheSameTrace) {
  for (const char* name : {"Beginner16", "Intermediate13", "Advanced19", "Expert20"}) {
    const fs::path level = fs::path(QUORBIT_LEVELS_DIR) / (std::string(name) + ".lvl");
    const fs::path solution = fs::path(QUORBIT_SOLUTIONS_DIR) / (std::string(name) + ".replay");
    if (!fs::exists(level) || !fs::exists(solution)) continue;
    SimOptions options;
    options.level = level.string();
    options.trace = true;
    options.replay = ReadText(solution);
    std::ostringstream first, second, err;
    const SimOutcome recorded = RunSimulation(options, first, err);
    ASSERT_EQ(recorded.exitStatus, 0) << name << ": " << err.str();
    options.replay = recorded.recording;
    ASSERT_EQ(RunSimulation(options, second, err).exitStatus, 0) << name;
    EXPECT_TRUE(first.str() == second.str()) << name << ": the recording plays differently";
    EXPECT_NE(first.str().find("\"result\":\"won\""), std::string::npos) << name;
  }
}

}  // namespace
}  // namespace qb
