// Small levels for the window tests and the end-to-end run.
#include "test_levels.h"

#include "support/level_builder.h"

namespace qb::test {

LevelData WalkLevel(int number, const std::string& title) {
  std::vector<std::string> rows(44, std::string(60, '.'));
  for (auto& row : rows) row.front() = row.back() = 'M';
  rows[21] = std::string(60, '#');
  rows[20][52] = 'D';
  LevelData d = MakeLevel(rows, 3, 18, 5, 3, 4, 300);
  d.Title = title;
  d.Number = number;
  d.ToolStock = {2, 2, 2, 3, 2, 1, 1, 1};
  return d;
}

LevelData PacingLevel(int number) {
  std::vector<std::string> rows(44, std::string(60, '.'));
  for (auto& row : rows) row.front() = row.back() = 'M';
  rows[21] = std::string(60, '#');
  LevelData d = MakeLevel(rows, 10, 18, 20, 20, 3, 999);
  d.Title = "Pacing";
  d.Number = number;
  return d;
}

}  // namespace qb::test
