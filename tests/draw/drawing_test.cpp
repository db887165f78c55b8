// The drawing model: squares, characters, flashes, the overview map and the incremental view.
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

TEST(Drawing, CharactersStayVisibleThroughSquareChangesFlashesAndErasing) {
  LevelData d = MakeLevel(Room(40, 40), 3, 38, 2, 0, 1);
  d.Slots[1] = d.Slots[0];
  TestGame t(d);
  t.g.Chars(0) = {0, 1, True, 3, 38, 0, 0, 0, 0, 0, 0, 0, 0};
  t.g.Chars(1) = {0, -1, True, 3, 38, 0, 0, 0, 0, 0, 0, 0, 0};
  t.g.CharactersReleased = 2;
  DrawView(t.g);
  const auto cell = [&] { return t.g.pic.Picture1.At(3, 38); };
  EXPECT_EQ(cell().colour, kBlack);  // the leader is drawn on top
  DrawSquare(t.g, 3, 38, Empty);
  EXPECT_TRUE(cell().face);
  DrawBlock(t.g, 3, 38, 0x123456);
  EXPECT_TRUE(cell().face);
  DrawBlock(t.g, 3, 38, QBColor(14));  // the yellow flash alone hides a character
  EXPECT_FALSE(cell().face);
  EXPECT_EQ(cell().colour, QBColor(14));
  EraseChar(t.g, 0);  // the other one on the square is drawn again
  EXPECT_EQ(cell().colour, kCrowdColour);
  EXPECT_EQ(cell().dir, -1);
}

TEST(Drawing, SquaresOutsideTheGridChangeNothingAndAnUnknownKindIsAFault) {
  TestGame t(MakeLevel(Room(40, 40), 3, 38, 1, 0, 1));
  const Game before = t.g;
  for (auto [x, y] : {std::pair{120, 0}, {0, 80}, {-1, 5}, {5, -1}})
    DrawSquare(t.g, x, y, SoftWall);
  EXPECT_TRUE(t.g.Grid == before.Grid);
  EXPECT_THROW(DrawSquare(t.g, 5, 5, 18), RangeFault);
}

TEST(Drawing, TheMapShowsCharactersOutsideTheViewAndMarkerKindsAreCleared) {
  std::vector<std::string> rows = Room(100, 45);
  rows[5][5] = '1';
  rows[6][6] = '!';
  TestGame t(MakeLevel(rows, 90, 43, 1, 0, 1));
  t.Ticks(1);
  EXPECT_EQ(t.g.pic.Map.Dot(90, 43), kBlack);
  for (int vy = 0; vy < kViewSize; ++vy)
    for (int vx = 0; vx < kViewSize; ++vx) EXPECT_FALSE(t.g.pic.Picture1.At(vx, vy).face);
  EXPECT_EQ(t.g.Grid(5, 5), Empty);
  EXPECT_EQ(t.g.Grid(6, 6), Empty);
  EXPECT_EQ(t.g.pic.Backing.Dot(5, 5), kWhite);
  EXPECT_EQ(t.g.pic.Backing.Dot(6, 44), t.g.SquareColour(MetalWall));
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
  LevelData d = MakeLevel(rows, 1, 40, 12, 0, 7, 900);
  d.StartViewY = 4;  // the view shows the bottom rows, where everything happens
  TestGame t(d);
  ASSERT_EQ(t.g.ViewY, 4);
  int compared = 0;
  for (int cycle = 0; cycle < 400; ++cycle) {
    t.Ticks(1);
    if (t.g.LastEnd != LevelEnd::None) break;  // the last one is gone: the level is over
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
