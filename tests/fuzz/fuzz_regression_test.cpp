// Fuzz regressions: every input that once broke a reader, and every seed, passes the checks the
// fuzz targets run.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "input_checks.h"

namespace qb::fuzz {
namespace {

namespace fs = std::filesystem;

std::string Contents(const fs::path& p) {
  std::ifstream in(p, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

// The files of one target's folder, in a stable order; none when the folder does not exist.
std::vector<fs::path> Files(const fs::path& folder) {
  std::vector<fs::path> out;
  if (fs::is_directory(folder))
    for (const auto& e : fs::directory_iterator(folder))
      if (e.is_regular_file()) out.push_back(e.path());
  std::sort(out.begin(), out.end());
  return out;
}

std::string Check(const std::string& target, const std::string& input) {
  if (target == "level_file") return CheckLevelFile({input.begin(), input.end()});
  if (target == "level_text") return CheckLevelText(input);
  if (target == "replay") return CheckReplay(input);
  return CheckSettings(input);
}

class EveryInput : public ::testing::TestWithParam<std::string> {};

TEST_P(EveryInput, PassesItsCheck) {
  const std::string target = GetParam();
  const auto seeds = Files(fs::path(QUORBIT_FUZZ_SEEDS) / target);
  ASSERT_FALSE(seeds.empty()) << "no seeds for " << target;
  auto inputs = Files(fs::path(QUORBIT_FUZZ_FOUND) / target);
  ASSERT_FALSE(inputs.empty()) << "no regression inputs for " << target;
  inputs.insert(inputs.end(), seeds.begin(), seeds.end());
  for (const fs::path& p : inputs) {
    SCOPED_TRACE(p.string());
    EXPECT_EQ(Check(target, Contents(p)), "");
  }
}

INSTANTIATE_TEST_SUITE_P(Fuzz, EveryInput,
                         ::testing::Values("level_file", "level_text", "replay", "settings"));

}  // namespace
}  // namespace qb::fuzz
