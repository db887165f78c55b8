// quorbit-sim as a process: its exit statuses, its trace and result lines, and recordings.
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

TEST_F(SimProcess, AMissingOrUnsupportedLevelExitsTwoWithAMessage) {
  SimRun missing = Sim((dir / "nothing.lvl").string());
  EXPECT_EQ(missing.status, 2);
  EXPECT_EQ(missing.out, "This level does not exist!\nno level in " +
                             (dir / "nothing.lvl").string() +
                             ": cannot open it: No such file or directory\n");

  LevelData bad = Walkway();
  bad.Squares[3] = 40;
  SimRun unsupported = Sim(WriteLevelFile("bad.lvl", bad).string());
  EXPECT_EQ(unsupported.status, 2);
  EXPECT_NE(unsupported.out.find("has kind 40"), std::string::npos) << unsupported.out;

  SimRun badReplay = Sim(WriteLevelFile("w.lvl", Walkway()).string() + " --replay " +
                         Write("r.replay", "5 B\nfive J\n").string());
  EXPECT_EQ(badReplay.status, 2);
  EXPECT_NE(badReplay.out.find("line 2"), std::string::npos) << badReplay.out;
}

TEST_F(SimProcess, TracesEveryCycleAndEndsWithTheResult) {
  SimRun r = Sim(WriteLevelFile("w.lvl", Walkway()).string() + " --trace");
  ASSERT_EQ(r.status, 0) << r.out;
  ASSERT_GE(r.lines.size(), 2u);
  EXPECT_EQ(r.lines[0].rfind("{\"t\":0,\"released\":0,\"saved\":0,\"time\":399,\"leader\":0,", 0),
            0u)
      << r.lines[0];
  EXPECT_NE(r.lines[3].find("\"chars\":[[0,2,1,-1,0,0,0,0,0,0],[0,2,1,0,0,0,0,0,0,0]"),
            std::string::npos)
      << r.lines[3];
  const std::string& last = r.lines.back();
  EXPECT_EQ(last.rfind("{\"result\":\"", 0), 0u);
  EXPECT_EQ(r.lines.size() - 1,
            static_cast<std::size_t>(std::stoi(last.substr(last.find("\"cycles\":") + 9))));
  EXPECT_NE(last.find("\"needed\":6,\"total\":10}"), std::string::npos) << last;
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

TEST_F(SimProcess, EveryToolShowsInTheTraceInTheCycleItIsUsed) {
  // A closed room: the crowd walks back and forth, so every tool finds its leader on the ground.
  const std::string inside = "M" + std::string(38, '.') + "M";
  LevelData room = test::MakeLevel(
      {inside, inside, inside, inside, inside, std::string(40, '#'), std::string(40, 'M')}, 1, 4,
      10, 6, 4, 400);
  room.ToolStock = {1, 1, 1, 1, 1, 1, 1, 1};
  const fs::path level = WriteLevelFile("room.lvl", room);
  const std::vector<std::pair<int, int>> uses = {{6, ToolSlow},    {9, ToolBlock}, {14, ToolBuild},
                                                 {18, ToolChange}, {24, ToolJump}, {33, ToolBomb},
                                                 {45, ToolLaser},  {50, ToolClimb}};
  std::string replay = "# every tool once\n";
  for (auto [t, tool] : uses) replay += std::to_string(t) + " " + kReplayLetters[tool] + "\n";
  SimRun r = Sim(level.string() + " --trace --max-cycles 60 --replay " +
                 Write("all.replay", replay).string());
  ASSERT_EQ(r.status, 0) << r.out;
  auto stock = [&](int t, int tool) {
    const std::string& l = r.lines.at(static_cast<std::size_t>(t));
    std::istringstream in(l.substr(l.find("\"stock\":[") + 9));
    int v = 0;
    char comma;
    for (int i = 0; i <= tool; ++i) in >> v >> comma;
    return v;
  };
  for (auto [t, tool] : uses) {
    EXPECT_EQ(stock(t - 1, tool), 1) << "tool " << tool;
    EXPECT_EQ(stock(t, tool), 0) << "tool " << tool << " in cycle " << t;
  }
  EXPECT_NE(r.lines[9].find("\"changed\":[["), std::string::npos) << r.lines[9];  // the block
  EXPECT_NE(r.lines[14].find(",3]]"), std::string::npos) << r.lines[14];          // a built block
  EXPECT_NE(r.lines[18].find("\"leader\":1"), std::string::npos) << r.lines[18];  // the change
}

TEST_F(SimProcess, ReplayingARecordingGivesTheSameTrace) {
  const fs::path level = WriteLevelFile("w.lvl", Walkway());
  const fs::path replay = Write("in.replay", "4 B\n6 K\n8 D\n11 J\n");
  const fs::path recorded = dir / "out.replay";
  SimRun first = Sim(level.string() + " --trace --replay " + replay.string() + " --record " +
                     recorded.string());
  ASSERT_EQ(first.status, 0) << first.out;
  SimRun second = Sim(level.string() + " --trace --replay " + recorded.string());
  EXPECT_EQ(first.out, second.out);
}

}  // namespace
}  // namespace qb
