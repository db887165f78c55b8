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
  d.Skill = 0;
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
  d.Slots[0].EntranceActive = -1;
  d.Slots[0].EntranceX = ex;
  d.Slots[0].EntranceY = static_cast<int16_t>(ey);
  return d;
}

TestGame::TestGame(const LevelData& level, bool titleCard) {
  g.ui.OptionsChecked(OptSound) = true;
  g.ui.OptionsChecked(OptReplay) = true;
  host.files["test.lvl"] = WriteLevel(level);
  g.LevelFile = "test.lvl";
  g.SkipTitle = titleCard ? False : True;
  g.ReplayLog(0) = "E";
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
