// quorbit-sim --verify judging a folder of replays, each tied to its level by a SHA-256.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "core/sha256.h"
#include "verify.h"

namespace qb {
namespace {

namespace fs = std::filesystem;

std::string ReadText(const fs::path& p) {
  std::ostringstream s;
  s << std::ifstream(p, std::ios::binary).rdbuf();
  return s.str();
}

void WriteText(const fs::path& p, const std::string& text) {
  std::ofstream(p) << text;
}

TEST(VerifyReplays, AWinVerifiesAndEveryKindOfFaultIsNamed) {
  const fs::path dir = fs::temp_directory_path() / "quorbit-saved-replay-test";
  fs::remove_all(dir);
  for (const char* sub : {"good", "bad"}) fs::create_directories(dir / sub);
  const std::string won = "# level: Expert20.lvl\n# sha256: " +
                          Sha256Hex(ReadText(fs::path(QUORBIT_LEVELS_DIR) / "Expert20.lvl")) +
                          "\n" + ReadText(fs::path(QUORBIT_SOLUTIONS_DIR) / "Expert20.replay");
  WriteText(dir / "good" / "Expert20 won.replay", won);
  WriteText(dir / "bad" / "Expert20 won.replay", won);
  std::string changed = won;
  changed[changed.find("# sha256: ") + 10] ^= 1;
  WriteText(dir / "bad" / "changed.replay", changed);
  WriteText(dir / "bad" / "Expert20.replay", "# no tools: time runs out\n");
  WriteText(dir / "bad" / "Beginner1.replay", "0 C\n12 Q\n");
  WriteText(dir / "bad" / "Nowhere9.replay", "0 C\n");

  std::ostringstream good, bad;
  EXPECT_TRUE(VerifyReplays(QUORBIT_LEVELS_DIR, (dir / "good").string(), good)) << good.str();
  EXPECT_FALSE(VerifyReplays(QUORBIT_LEVELS_DIR, (dir / "bad").string(), bad));
  const std::string lines = bad.str();
  for (const char* expected :
       {"Beginner1.replay: bad file: line 2: \"Q\" is not a replay letter",
        "Expert20 won.replay: won", "Expert20.replay: timeout", "Nowhere9.replay: missing level",
        "changed.replay: SHA-256 differs", "1 of 5 replays win"})
    EXPECT_NE(lines.find(expected), std::string::npos) << expected << " in\n" << lines;
  fs::remove_all(dir);
}

}  // namespace
}  // namespace qb
