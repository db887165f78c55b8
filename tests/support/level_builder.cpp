// Builds small levels for tests from rows of characters.
#include "support/level_builder.h"

#include <stdexcept>

#include "level/loader.h"
#include "play/cycle.h"
#include "play/level_end.h"
#include "play/use_tool.h"

namespace qb::test {

namespace {

// The square kind a character stands for: its place in the legend.
int KindOf(char ch) {
  static const std::string legend = ".1#okgbBMN~^!cCZDT";
  const auto p = legend.find(ch);
  if (p == std::string::npos) throw std::invalid_argument(std::string("no kind for ") + ch);
  return static_cast<int>(p);
}

}  // namespace

LevelData MakeLevel(const std::vector<std::string>& rows, int ex, int ey, int total, int needed,
                    int releaseInterval, int time) {
  LevelData d;
  d.Title = "Test";
  d.Number = 1;
  d.CharactersTotal = total;
  d.CharactersNeeded = static_cast<int16_t>(needed);
  d.TimeLeft = time;
  d.GridWidth = static_cast<int16_t>(rows.at(0).size());
  d.GridHeight = static_cast<int32_t>(rows.size());
  d.ReleaseInterval = static_cast<int16_t>(releaseInterval);
  d.Squares.assign(static_cast<std::size_t>(d.GridWidth * d.GridHeight), 0);
  for (int y = 0; y < d.GridHeight; ++y)
    for (int x = 0; x < d.GridWidth; ++x)
      d.Square(x, y) = static_cast<int16_t>(
          KindOf(rows[static_cast<std::size_t>(y)].at(static_cast<std::size_t>(x))));
  d.Slots[0] = {-1, 0, 0, ex, static_cast<int16_t>(ey), 0, 0, 0, 0};
  return d;
}

LevelData EveryAnimation() {
  std::vector<std::string> rows(40, std::string(40, '.'));
  auto put = [&](int x, int y, char ch) { rows[static_cast<std::size_t>(y)][x] = ch; };
  for (int x = 0; x < 40; ++x) put(x, 5, 'M'), put(x, 39, 'M');
  for (int y : {3, 4}) put(0, y, 'M'), put(39, y, 'D');
  for (int x : {10, 11, 25, 26}) put(x, 3, '#'), put(x, 4, '#');
  put(27, 4, 'M');
  const char hazards[] = "~^Z.T";
  for (int lane = 0; lane < 5; ++lane) {
    const int walk = 8 + 4 * lane;
    for (int x = 0; x < 17; ++x) put(x, walk + 1, 'M');
    for (int x : {0, 16}) put(x, walk, 'M'), put(x, walk - 1, 'M');
    if (lane < 2) put(5, walk + 1, hazards[lane]);
    if (lane == 2 || lane == 4) put(6, walk, hazards[lane]);
  }
  put(30, 18, 'T');
  LevelData d = test::MakeLevel(rows, 1, 4, 6, 1, 2, 300);
  for (int i = 1; i < 6; ++i) {
    d.Slots[i].EntranceActive = -1;
    d.Slots[i].EntranceX = 1;
    d.Slots[i].EntranceY = static_cast<int16_t>(4 + 4 * i);
  }
  d.Slots[0].TrapActive = -1;
  d.Slots[0].TrapX = 6;
  d.Slots[0].TrapY = 20;
  d.Slots[0].TeleportActive = d.Slots[1].TeleportActive = -1;
  d.Slots[0].TeleportX = 6;
  d.Slots[0].TeleportY = 24;
  d.Slots[1].TeleportX = 30;
  d.Slots[1].TeleportY = 18;
  d.ToolStock = {1, 0, 0, 0, 0, 0, 1, 1};
  return d;
}

TestGame::TestGame(const LevelData& level, bool titleCard) {
  g.ui.OptionsChecked(OptSound) = true;
  g.ui.OptionsChecked(OptReplay) = true;
  host.files["test.lvl"] = WriteLevel(level);
  g.LevelFile = "test.lvl";
  g.SkipTitle = titleCard ? False : True;
  g.ReplayLog(0) = 'E';  // a char: g++ 12 -O3 misreads "E" (-Wrestrict)
  if (const LoadOutcome load = LoadLevel(g, "test.lvl"); !load.Loaded())
    throw std::runtime_error("test level refused: " + load.message);
}

void TestGame::Ticks(int n) {
  for (int i = 0; i < n; ++i) Timer1_Timer(g);
}

void TestGame::Use(int tool) {
  FinishLevel(g, UseTool(g, tool));
}

}  // namespace qb::test
