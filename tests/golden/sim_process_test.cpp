// quorbit-sim as a process: its exit statuses, its result line, and recordings. The trace
// itself is pinned line by line by the golden cases beside this file.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "core/level_file.h"
#include "support/level_builder.h"

namespace qb {
namespace {

namespace fs = std::filesystem;

struct SimRun {
  int status = -1;
  std::string out;
  std::vector<std::string> lines;
};

class SimProcess : public ::testing::Test {
 protected:
  fs::path dir =
      fs::temp_directory_path() / ("quorbit-sim-test-" + std::to_string(::getpid()) + "-" +
                                   ::testing::UnitTest::GetInstance()->current_test_info()->name());
  void SetUp() override { fs::create_directories(dir); }
  void TearDown() override { fs::remove_all(dir); }

  fs::path Write(const std::string& name, const std::string& bytes) {
    const fs::path p = dir / name;
    std::ofstream(p, std::ios::binary) << bytes;
    return p;
  }
  fs::path WriteLevelFile(const std::string& name, const LevelData& d) {
    const auto bytes = WriteLevel(d);
    return Write(name, std::string(bytes.begin(), bytes.end()));
  }
  SimRun Sim(const std::string& args) {
    SimRun r;
    const std::string command = std::string(QUORBIT_SIM) + " " + args + " 2>&1";
    FILE* pipe = ::popen(command.c_str(), "r");
    char buffer[65536];
    std::size_t n;
    while ((n = std::fread(buffer, 1, sizeof buffer, pipe)) > 0) r.out.append(buffer, n);
    r.status = WEXITSTATUS(::pclose(pipe));
    std::istringstream lines(r.out);
    for (std::string line; std::getline(lines, line);) r.lines.push_back(line);
    return r;
  }
};

// Ten characters walk over a step to a door; two fall into a pit of water on the way back.
LevelData Walkway() {
  LevelData d =
      test::MakeLevel({"....................", "....................", "..........#........D",
                       "#####~##############", "MMMMMMMMMMMMMMMMMMMM"},
                      0, 2, 10, 6, 4, 400);
  d.ToolStock = {1, 1, 2, 2, 1, 1, 1, 1};
  return d;
}

// (An unplayable level is refused the same way; the level tool's tests run that case.)
TEST_F(SimProcess, AMissingLevelOrABadReplayExitsTwoWithAMessage) {
  SimRun missing = Sim((dir / "nothing.lvl").string());
  EXPECT_EQ(missing.status, 2);
  EXPECT_EQ(missing.out, "This level does not exist!\n");

  SimRun badReplay = Sim(WriteLevelFile("w.lvl", Walkway()).string() + " --replay " +
                         Write("r.replay", "5 B\nfive J\n").string());
  EXPECT_EQ(badReplay.status, 2);
  EXPECT_NE(badReplay.out.find("line 2"), std::string::npos) << badReplay.out;
}

TEST_F(SimProcess, MaxCyclesStopsARunningLevel) {
  SimRun r = Sim(WriteLevelFile("w.lvl", Walkway()).string() + " --max-cycles 7");
  EXPECT_EQ(r.status, 0);
  EXPECT_EQ(r.out, "{\"result\":\"running\",\"cycles\":7,\"saved\":0,\"needed\":6,\"total\":10}\n");
}

TEST_F(SimProcess, AFaultPrintsTheTraceSoFarAndExitsThree) {
  LevelData d = Walkway();
  d.Squares[static_cast<std::size_t>(3 + 20 * 2)] = TeleportSquare;  // at (3, 2)
  d.Slots[0].TeleportActive = -1;
  d.Slots[0].TeleportX = 3;
  d.Slots[0].TeleportY = 2;
  d.Slots[1].TeleportX = 500;  // the partner leads outside the grid
  SimRun r = Sim(WriteLevelFile("f.lvl", d).string() + " --trace");
  EXPECT_EQ(r.status, 3);
  EXPECT_NE(r.out.find("Grid(500, 0)"), std::string::npos) << r.out;
  EXPECT_EQ(r.out.find("\"result\""), std::string::npos);
}

// A run recorded while a shipped solution plays, replayed, gives the same trace cycle for cycle.
TEST_F(SimProcess, ReplayingARecordingGivesTheSameTrace) {
  const std::string level = std::string(QUORBIT_LEVELS_DIR) + "/Expert20.lvl";
  const std::string solution = std::string(QUORBIT_SOLUTIONS_DIR) + "/Expert20.replay";
  const fs::path recorded = dir / "out.replay";
  SimRun first = Sim(level + " --trace --replay " + solution + " --record " + recorded.string());
  ASSERT_EQ(first.status, 0) << first.out;
  EXPECT_NE(first.lines.back().find("\"result\":\"won\""), std::string::npos);
  SimRun second = Sim(level + " --trace --replay " + recorded.string());
  EXPECT_TRUE(first.out == second.out) << "the recording plays differently";
}

}  // namespace
}  // namespace qb
