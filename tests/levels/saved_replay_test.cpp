// A won attempt kept as a replay file, and quorbit-sim --verify judging a folder of replays.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "core/sha256.h"
#include "file_host.h"
#include "level/loader.h"
#include "play/commands.h"
#include "play/cycle.h"
#include "play/level_end.h"
#include "play/replay.h"
#include "verify.h"

namespace qb {
namespace {

namespace fs = std::filesystem;

std::string ReadText(const fs::path& p) {
  std::ifstream in(p, std::ios::binary);
  std::ostringstream s;
  s << in.rdbuf();
  return s.str();
}

void WriteText(const fs::path& p, const std::string& text) {
  std::ofstream(p, std::ios::binary) << text;
}

// Plays a level as the window does, pressing the solution's tools by hand, until it is won;
// returns the replay file the game kept of the won attempt.
std::string WinByHand(const std::string& name) {
  FileHost host;
  auto game = std::make_unique<Game>(host);
  Game& g = *game;
  g.ui.OptionsChecked(OptSound) = g.ui.OptionsChecked(OptMusic) = false;
  g.SkipTitle = True;
  g.LevelFile = (fs::path(QUORBIT_LEVELS_DIR) / (name + ".lvl")).string();
  EXPECT_TRUE(LoadLevel(g, g.LevelFile).Loaded());
  const ReplayFile solution =
      ParseReplay(ReadText(fs::path(QUORBIT_SOLUTIONS_DIR) / (name + ".replay")));
  const int before = g.lastFinished.count;
  while (g.lastFinished.count == before && g.attempt.cycles < 5000) {
    for (char letter :
         solution.slots[static_cast<std::size_t>(std::min(g.ReplayTick, int16_t{2000}))])
      ToolButtonDown(g, static_cast<int>(std::string_view("CKBDJRXL").find(letter)));
    Timer1_Timer(g);
  }
  EXPECT_TRUE(g.lastFinished.won) << name;
  return g.lastFinished.replay;
}

TEST(SavedReplay, AWonAttemptVerifiesAndEveryKindOfFaultIsNamed) {
  const fs::path dir = fs::temp_directory_path() / "quorbit-saved-replay-test";
  fs::remove_all(dir);
  fs::create_directories(dir / "good");
  fs::create_directories(dir / "bad");
  const std::string won = WinByHand("Expert20");
  EXPECT_NE(
      won.find("# sha256: " + Sha256Hex(ReadText(fs::path(QUORBIT_LEVELS_DIR) / "Expert20.lvl"))),
      std::string::npos);
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
       {"Beginner1.replay: bad file: line 2: 'Q' is not a replay letter",
        "Expert20 won.replay: won", "Expert20.replay: timeout", "Nowhere9.replay: missing level",
        "changed.replay: SHA-256 differs", "1 of 5 replays win"})
    EXPECT_NE(lines.find(expected), std::string::npos) << expected << " in\n" << lines;
  fs::remove_all(dir);
}

TEST(Sha256, StandardVectorsAcrossThePaddingBoundary) {
  EXPECT_EQ(Sha256Hex(""), "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855");
  EXPECT_EQ(Sha256Hex("abc"), "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");
  EXPECT_EQ(Sha256Hex("abcdbcdecdefdefgefghfghighijhijkijkljklmklmnlmnomnopnopq"),
            "248d6a61d20638b8e5c026930c3e6039a33ce45964ff2167f6ecedd419db06c1");
}

}  // namespace
}  // namespace qb
