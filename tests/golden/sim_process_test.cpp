// quorbit-sim as a process: its exit statuses, its result line and the view trace. The trace
// itself is pinned line by line by the golden cases beside this file.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <map>
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
    FILE* pipe = ::popen((std::string(QUORBIT_SIM) + " " + args + " 2>&1").c_str(), "r");
    for (int c; (c = std::fgetc(pipe)) != EOF;) r.out += static_cast<char>(c);
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
  return d;
}

// (An unplayable level is refused the same way; the level tool's tests run that case.)
TEST_F(SimProcess, AMissingLevelOrABadReplayExitsTwoWithAMessage) {
  SimRun missing = Sim((dir / "nothing.lvl").string());
  EXPECT_EQ(missing.status, 2);
  EXPECT_NE(missing.out.find("nothing.lvl: cannot open it"), std::string::npos) << missing.out;

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

// The squares of a view line, "c,r" -> "colour,face".
std::map<std::string, std::string> ViewSquares(const std::string& line) {
  std::map<std::string, std::string> squares;
  const auto from = line.find("\"squares\":[") + 11, to = line.find("],\"dots\"");
  std::istringstream in(line.substr(from, to - from));
  long c, r, colour, face;  // a face may be negative: turned left
  char ch;
  while (in >> ch >> c >> ch >> r >> ch >> colour >> ch >> face >> ch) {
    squares[std::to_string(c) + "," + std::to_string(r)] =
        std::to_string(colour) + "," + std::to_string(face);
    in >> ch;
  }
  return squares;
}

TEST_F(SimProcess, TheViewTraceShowsEveryAnimationAsTheDrawingRulesPaintIt) {
  SimRun r = Sim(WriteLevelFile("every.lvl", test::EveryAnimation()).string() +
                 " --trace-view --replay " + Write("every.replay", "2 C\n18 L\n46 X\n").string());
  ASSERT_EQ(r.status, 0) << r.out;
  ASSERT_EQ(r.lines.size(), 60u);  // the set-up, 58 cycles, the result
  EXPECT_EQ(r.lines.back(),
            "{\"result\":\"won\",\"cycles\":58,\"saved\":1,\"needed\":1,\"total\":6}");
  auto at = [](unsigned c, int face) { return std::to_string(c) + "," + std::to_string(face); };
  const std::string white = at(0xFFFFFF, 0), yellow = at(0x00FFFF, 0), jaw = at(0xC0C0FF, 0),
                    crowd = at(0xA25C53, 1), green = at(0x00FF00, 0), unchanged;
  struct Seen {
    int t;
    const char* square;
    std::string picture;  // empty: not listed, the square looks as before
  };
  const Seen seen[] = {
      {-1, "5,9", at(0xFF0000, 0)},
      {-1, "6,24", at(0x000040, 0)},  // water, a teleport
      {8, "5,8", at(0xFF0000, 0)},
      {8, "5,7", at(0xFF0000, 0)},  // splash in water
      {10, "5,12", at(0x0000FF, 0)},
      {10, "5,11", at(0x0000FF, 0)},  // and in lava
      {10, "9,3", at(0, 2)},
      {10, "9,4", white},  // the leader climbs
      {12, "5,16", yellow},
      {13, "5,16", crowd},  // a shock's flashes
      {14, "4,19", jaw},
      {14, "8,20", jaw},  // a trap's jaws, stage 1
      {14, "6,20", crowd},
      {15, "4,19", white},  // then stage 2
      {15, "5,19", jaw},
      {15, "4,20", unchanged},  // repainted, painted again
      {18, "6,20", jaw},
      {19, "6,20", white},  // they close, and open
      {16, "6,24", green},
      {17, "6,24", at(0x000040, 0)},  // a teleport's passage
      {18, "30,18", green},
      {19, "30,18", at(0x000040, 0)},
      {19, "30,19", crowd},  // walks out, falls
      {18, "15,4", yellow},
      {18, "16,4", yellow},  // the laser's beam
      {27, "15,4", white},
      {28, "23,4", jaw},  // its explosion at the tip
      {39, "29,37", at(0xA25C53, 0)},
      {39, "30,38", white},  // the fall to death
      {40, "29,37", white},
      {40, "31,38", at(0xA25C53, 0)},
      {46, "31,4", yellow},
      {46, "32,5", jaw},  // the bomb: centre, ring
  };
  for (const Seen& s : seen) {
    const auto squares = ViewSquares(r.lines.at(static_cast<std::size_t>(s.t + 1)));
    const auto it = squares.find(s.square);
    EXPECT_EQ(it == squares.end() ? unchanged : it->second, s.picture)
        << "cycle " << s.t << ", square " << s.square;
  }
  EXPECT_NE(r.lines[0].find("[5,13,255]"), std::string::npos);  // the lava's dot on the map
  // The leader walks into the door: the end clears the view and leaves the map as it was.
  const std::string& end = r.lines[58];
  const auto cleared = ViewSquares(end);
  EXPECT_GT(cleared.size(), 150u);
  for (const auto& [square, picture] : cleared) EXPECT_EQ(picture, white) << square;
  EXPECT_EQ(end.substr(end.find("\"dots\"")), "\"dots\":[[38,4,16777215]]}");
}

}  // namespace
}  // namespace qb
