// The tier limits on analyses made by hand: each figure just inside and just outside its limit.
#include "analysis/limits.h"

#include <gtest/gtest.h>

namespace qb::analysis {
namespace {

PressFigures Figures(int cycle, char letter, int alone, int shifted) {
  PressFigures f;
  f.press = {cycle, letter};
  f.alone = {cycle, cycle + alone - 1};
  f.shifted = {cycle, cycle + shifted - 1};
  return f;
}

// A won level of `area` squares with all its figures comfortably inside every tier's limits.
Analysis Comfortable() {
  Analysis a;
  a.result = {LevelEnd::Won, 300, 9};
  a.limit = 601;
  a.needed = 6;
  a.total = 10;
  a.noTools = {LevelEnd::Lost, 200, 0};
  a.presses = {Figures(10, 'C', 6, 6), Figures(40, 'B', 6, 6), Figures(80, 'B', 6, 6)};
  a.space.area = 400;
  a.space.visited = 60;
  return a;
}

std::vector<std::string> Check(int tier, const Analysis& a, std::vector<int> stock) {
  return Breaches({tier, 5, std::move(stock), &a, std::nullopt});
}

TEST(Limits, EachFigureBreaksItsTierLimitJustPastIt) {
  const std::vector<int> stock = {2, 0, 3, 0,
                                  0, 0, 5, 0};  // 1 + 1 spare; 5 unused bombs don't count
  Analysis a = Comfortable();
  EXPECT_EQ(Check(0, a, stock).size(), 0u);
  EXPECT_EQ(Check(0, a, {1, 0, 3, 0, 0, 0, 5, 0}).size(), 1u);
  EXPECT_EQ(Check(1, a, {1, 0, 3, 0, 0, 0, 5, 0}).size(), 0u);

  a.presses[1] = Figures(40, 'B', 3, 6);
  EXPECT_EQ(Check(0, a, stock).size(), 1u);
  EXPECT_EQ(Check(1, a, stock).size(), 0u);
  a.presses[1] = Figures(40, 'B', 2, 2);
  EXPECT_EQ(Check(1, a, stock).size(), 1u);
  EXPECT_EQ(Check(2, a, stock).size(), 0u);

  a = Comfortable();
  a.result.cycles = 481;  // 120 of 601 cycles left: under 20%, over 15%
  EXPECT_EQ(Check(1, a, stock).size(), 1u);
  EXPECT_EQ(Check(2, a, stock).size(), 0u);
  a.result.saved = 7;  // a margin of 1
  EXPECT_EQ(Check(2, a, stock).size(), 1u);
  EXPECT_EQ(Check(3, a, stock).size(), 0u);

  a = Comfortable();
  a.space.visited = 31;  // 7.75% of 400
  a.space.sealed = 41;
  EXPECT_EQ(Check(3, a, stock).size(), 2u);
  a.space.visited = 32;
  a.space.sealed = 40;
  EXPECT_EQ(Check(3, a, stock).size(), 0u);
}

TEST(Limits, ExpertOneCyclePressesAQuarterAndNeverTwoInARow) {
  const std::vector<int> stock = {1, 0, 3, 0, 0, 0, 0, 0};
  Analysis a = Comfortable();
  a.presses.push_back(Figures(120, 'B', 6, 6));  // four presses: one may be one-cycle
  a.presses[1] = Figures(40, 'B', 6, 1);
  EXPECT_EQ(Check(3, a, stock).size(), 0u);
  EXPECT_FALSE(Check(2, a, stock).empty());
  a.presses[2] = Figures(80, 'B', 1, 6);
  const auto both = Check(3, a, stock);
  ASSERT_EQ(both.size(), 2u);  // two in a row, and more than a quarter
  EXPECT_NE(both[0].find("in a row"), std::string::npos);
  a.presses[2] = Figures(80, 'B', 6, 6);
  a.presses[3] = Figures(120, 'B', 1, 1);
  EXPECT_EQ(Check(3, a, stock).size(), 1u);  // apart, but two of four
}

TEST(Limits, ShortcutsAndRedundantPresses) {
  const std::vector<int> stock = {2, 0, 3, 0, 0, 0, 0, 0};
  Analysis a = Comfortable();
  a.noTools = {LevelEnd::Won, 200, 9};
  a.presses.clear();
  EXPECT_EQ(Breaches({0, 2, std::vector<int>(8, 0), &a, std::nullopt}).size(), 0u);  // a walk
  EXPECT_EQ(Breaches({0, 2, stock, &a, std::nullopt}).size(), 1u);  // tools, none used
  a.presses = Comfortable().presses;
  EXPECT_EQ(Breaches({0, 3, stock, &a, std::nullopt}).size(), 1u);
  a = Comfortable();
  a.singleTool = {{0, {}}, {2, {55}}};
  a.presses[2].redundant = true;
  EXPECT_EQ(Check(3, a, stock).size(), 2u);
  a.presses.pop_back();  // with two presses a single winning press is allowed
  EXPECT_EQ(Check(3, a, stock).size(), 0u);
  Solution found{SolveResult::Found, {{5, 'C'}, {9, 'B'}}, 100};
  EXPECT_EQ(Breaches({3, 9, stock, &a, found}).size(), 1u);
  found.result = SolveResult::Undetermined;
  EXPECT_EQ(Breaches({3, 9, stock, &a, found}).size(), 0u);
}

}  // namespace
}  // namespace qb::analysis
