// The drawing model: squares, characters, flashes, the overview map and its frame.
#include "draw/drawing.h"

#include <gtest/gtest.h>

#include "play/level_commands.h"
#include "support/level_builder.h"

namespace qb {
namespace {

using test::MakeLevel;
using test::TestGame;

std::vector<std::string> Room(int w, int h) {
  std::vector<std::string> rows(static_cast<std::size_t>(h),
                                std::string(static_cast<std::size_t>(w), '.'));
  rows.back() = std::string(static_cast<std::size_t>(w), 'M');
  return rows;
}

TEST(Drawing, ACharacterOnASquareThatBecomesEmptyStaysVisible) {
  TestGame t(MakeLevel(Room(40, 40), 3, 38, 1, 0, 1));
  t.Ticks(1);
  const auto& c = t.C(0);
  DrawSquare(t.g, c.X, c.Y, Empty);
  EXPECT_TRUE(t.g.pic.Picture1.At(c.X, c.Y).face);
  EXPECT_EQ(t.g.pic.Picture1.At(c.X, c.Y).colour, kBlack);  // the leader
}

TEST(Drawing, SquaresOutsideTheGridChangeNothing) {
  TestGame t(MakeLevel(Room(40, 40), 3, 38, 1, 0, 1));
  const Game before = t.g;
  for (auto [x, y] : {std::pair{120, 0}, {0, 80}, {-1, 5}, {5, -1}})
    DrawSquare(t.g, x, y, SoftWall);
  EXPECT_TRUE(t.g.Grid == before.Grid);
  EXPECT_THROW(DrawSquare(t.g, 5, 5, 18), RangeFault);
}

TEST(Drawing, YellowFlashHidesACharacterOtherColoursLeaveItVisible) {
  TestGame t(MakeLevel(Room(40, 40), 3, 38, 1, 0, 1));
  t.Ticks(1);
  const int x = t.C(0).X, y = t.C(0).Y;
  DrawBlock(t.g, x, y, 0x123456);
  EXPECT_TRUE(t.g.pic.Picture1.At(x, y).face);
  DrawBlock(t.g, x, y, QBColor(14));
  EXPECT_FALSE(t.g.pic.Picture1.At(x, y).face);
  EXPECT_EQ(t.g.pic.Picture1.At(x, y).colour, QBColor(14));
}

TEST(Drawing, ErasingOneOfTwoOnASquareRedrawsTheOtherAndTheLeaderIsOnTop) {
  LevelData d = MakeLevel(Room(40, 40), 3, 38, 2, 0, 1);
  d.Slots[1] = d.Slots[0];
  TestGame t(d);
  t.g.Chars(0) = {0, 1, True, 3, 38, 0, 0, 0, 0, 0, 0, 0, 0};
  t.g.Chars(1) = {0, -1, True, 3, 38, 0, 0, 0, 0, 0, 0, 0, 0};
  t.g.CharactersReleased = 2;
  DrawView(t.g);
  EXPECT_EQ(t.g.pic.Picture1.At(3, 38).colour, kBlack);
  EraseChar(t.g, 0);
  EXPECT_EQ(t.g.pic.Picture1.At(3, 38).colour, kCrowdColour);
  EXPECT_EQ(t.g.pic.Picture1.At(3, 38).dir, -1);
}

TEST(Drawing, ACharacterOutsideTheViewIsADotOnTheMap) {
  LevelData d = MakeLevel(Room(100, 45), 90, 43, 1, 0, 1);
  TestGame t(d);
  t.Ticks(1);
  EXPECT_EQ(t.g.pic.Map.Dot(90, 43), kBlack);
  for (int vy = 0; vy < kViewSize; ++vy)
    for (int vx = 0; vx < kViewSize; ++vx) EXPECT_FALSE(t.g.pic.Picture1.At(vx, vy).face);
}

TEST(Drawing, MapSizesFollowTheLevelAndKindsOneAndTwelveAreCleared) {
  std::vector<std::string> rows = Room(60, 40);
  rows[5][5] = '1';
  rows[6][6] = '!';
  TestGame t(MakeLevel(rows, 3, 38));
  EXPECT_DOUBLE_EQ(t.g.ui.MapWidthTwips, 1567.5);
  EXPECT_DOUBLE_EQ(t.g.ui.MapHeightTwips, 967.5);
  EXPECT_EQ(t.g.pic.Map.Width(), 60);
  EXPECT_EQ(t.g.Grid(5, 5), Empty);
  EXPECT_EQ(t.g.Grid(6, 6), Empty);
  EXPECT_EQ(t.g.pic.Backing.Dot(5, 5), kWhite);
  EXPECT_EQ(t.g.pic.Backing.Dot(6, 39), t.g.SquareColour(MetalWall));
}

TEST(Drawing, SwitchingFastScrollingOnClearsTheViewAndItsPaintDrawsItAgain) {
  TestGame t(MakeLevel(Room(40, 40), 3, 38, 1, 0, 1));
  t.Ticks(2);
  const ViewPicture before = t.g.pic.Picture1;
  OptionsCmd_Click(t.g, OptFastScrolling);
  EXPECT_EQ(t.g.pic.Picture1.At(5, 39).colour, kWhite);  // the floor is gone from the view
  Picture1_Paint(t.g);
  for (int vy = 0; vy < kViewSize; ++vy)
    for (int vx = 0; vx < kViewSize; ++vx)
      EXPECT_EQ(t.g.pic.Picture1.At(vx, vy), before.At(vx, vy)) << vx << "," << vy;
  OptionsCmd_Click(t.g, OptFastScrolling);  // off again: the view keeps its own image
  EXPECT_EQ(t.g.pic.Picture1.At(5, 39).colour, t.g.SquareColour(MetalWall));
}

// At quiet moments (no animation, no tool running) the view drawn square by square during play
// must equal the view drawn from scratch.
TEST(Drawing, TheIncrementalViewMatchesAFreshDrawAtQuietMoments) {
  std::vector<std::string> rows = Room(44, 44);
  rows[42] = std::string(44, '.');
  rows[42][20] = '#';
  rows[41][30] = '#';
  rows[40][30] = '#';
  rows[42][10] = 'c';
  rows[43][12] = 'c';
  rows[43][14] = '.';
  rows[43][15] = '.';
  TestGame t(MakeLevel(rows, 1, 40, 12, 0, 7, 900));
  int compared = 0;
  for (int cycle = 0; cycle < 400 && t.g.LastEnd == LevelEnd::None; ++cycle) {
    t.Ticks(1);
    bool quiet = t.g.Bombing == 0 && t.g.Blocking == 0 && t.g.Lasering == 0;
    for (int i = 0; i < t.g.CharactersTotal; ++i) {
      const auto& c = t.C(i);
      quiet = quiet && c.Splatted == 0 && c.Splashed == 0 && c.Shocked == 0 && c.Trapped == 0 &&
              c.Teleporting == 0;
    }
    if (!quiet) continue;
    Game fresh = t.g;
    DrawView(fresh);
    for (int vy = 0; vy < kViewSize; ++vy)
      for (int vx = 0; vx < kViewSize; ++vx)
        ASSERT_EQ(t.g.pic.Picture1.At(vx, vy).colour, fresh.pic.Picture1.At(vx, vy).colour)
            << "cycle " << cycle << " square " << vx + t.g.ViewX << "," << vy + t.g.ViewY;
    ++compared;
  }
  EXPECT_GT(compared, 50);
}

}  // namespace
}  // namespace qb
