// Every shipped level has its solution, and from the fourth Beginner level on is lost when no tool
// is used (that every solution wins is checked by quorbit-sim --verify).
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "sim_run.h"

namespace qb {
namespace {

namespace fs = std::filesystem;

TEST(ShippedLevels, EachHasASolutionAndNoneFromBeginnerFourOnIsWonWithoutTools) {
  const char* const tiers[4] = {"Beginner", "Intermediate", "Advanced", "Expert"};
  for (int tier = 0; tier < 4; ++tier)
    for (int n = 1; n <= 20; ++n) {
      const std::string name = tiers[tier] + std::to_string(n);
      EXPECT_TRUE(fs::exists(fs::path(QUORBIT_SOLUTIONS_DIR) / (name + ".replay")))
          << name << ": its solution is missing";
      SimOptions options;
      options.level = (fs::path(QUORBIT_LEVELS_DIR) / (name + ".lvl")).string();
      EXPECT_TRUE(fs::exists(options.level)) << name << ": the level is missing";
      if (tier == 0 && n < 4) continue;  // the first three are walked without tools
      std::ostringstream out, err;
      ASSERT_EQ(RunSimulation(options, out, err).exitStatus, 0) << name << ": " << err.str();
      const std::string text = out.str();
      EXPECT_TRUE(text.find("\"result\":\"lost\"") != std::string::npos ||
                  text.find("\"result\":\"timeout\"") != std::string::npos)
          << name << " with no tools: " << text.substr(text.rfind('{'));
    }
}

}  // namespace
}  // namespace qb
