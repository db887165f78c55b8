// Fuzz regressions: every input that once broke a reader, and every seed, passes the checks the
// fuzz targets run.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "input_checks.h"
#include "level_text.h"
#include "support/level_builder.h"

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
  inputs.insert(inputs.end(), seeds.begin(), seeds.end());
  for (const fs::path& p : inputs) {
    SCOPED_TRACE(p.string());
    EXPECT_EQ(Check(target, Contents(p)), "");
  }
}

INSTANTIATE_TEST_SUITE_P(Fuzz, EveryInput,
                         ::testing::Values("level_file", "level_text", "replay", "settings"));

// A compiled level given to the text compiler: one clear error, not its bytes line by line.
TEST(HostileText, ABinaryFileIsOneErrorThatNamesDecompile) {
  const auto bytes = WriteLevel(test::MakeLevel({"....D", "#####"}, 0, 0));
  const auto parsed = leveltext::ParseLevelText(std::string(bytes.begin(), bytes.end()));
  ASSERT_EQ(parsed.diagnostics.size(), 1u);
  EXPECT_FALSE(parsed.ok());
  EXPECT_NE(parsed.diagnostics[0].message.find("quorbit-level decompile"), std::string::npos);
  EXPECT_EQ(parsed.diagnostics[0].line, 1);
  // The line counts the text before the first NUL byte.
  const auto late = leveltext::ParseLevelText(std::string("title: a\n\ntier: 0\0\n", 19));
  ASSERT_EQ(late.diagnostics.size(), 1u);
  EXPECT_EQ(late.diagnostics[0].line, 3);
}

// Text from the file quoted in a message cannot drive the terminal and stays short.
TEST(HostileText, QuotedFileTextHasNoControlBytesAndIsCut) {
  const std::string key = "\x1b[2J" + std::string(200, 'k');
  const auto parsed = leveltext::ParseLevelText(key + ": 1\ngrid:\nD\n");
  ASSERT_FALSE(parsed.diagnostics.empty());
  const std::string& message = parsed.diagnostics[0].message;
  EXPECT_EQ(message.find('\x1b'), std::string::npos) << message;
  EXPECT_NE(message.find("\\x1B[2J"), std::string::npos) << message;
  EXPECT_LT(message.size(), 100u) << message;
}

// Characters of two UTF-8 bytes above U+00FF do not fit a title byte: refused, never cut to one.
TEST(HostileText, ATitleCharacterAboveLatin1IsRefusedNotCut) {
  const std::string rest =
      "tier: 0\nnumber: 1\ncharacters: 1\nneeded: 1\ntime: 9\nrelease: 1\ngrid:\nD\n";
  const auto polish = leveltext::ParseLevelText(std::string("title: \xC5\x81\xC3\xB3"
                                                            "d\xC5\xBA\n") +
                                                rest);
  ASSERT_FALSE(polish.ok());
  EXPECT_NE(polish.diagnostics[0].message.find("U+0141"), std::string::npos)
      << polish.diagnostics[0].message;
  const auto latin = leveltext::ParseLevelText(std::string("title: G\xC3\xB6"
                                                           "del\n") +
                                               rest);
  ASSERT_TRUE(latin.ok());
  EXPECT_EQ(latin.data.Title,
            "G\xF6"
            "del");
}

}  // namespace
}  // namespace qb::fuzz
