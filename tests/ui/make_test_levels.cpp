// Writes the small levels the window tests and the end-to-end run play: FOLDER/Levels/*.lvl.
#include <filesystem>
#include <fstream>
#include <iostream>

#include "core/level_file.h"
#include "support/level_builder.h"

namespace {

// A walk to the door: a floor from wall to wall, wider and taller than the view so it scrolls.
qb::LevelData Walk(int number, const std::string& title) {
  std::vector<std::string> rows(44, std::string(60, '.'));
  for (auto& row : rows) row.front() = row.back() = 'M';
  rows[21] = std::string(60, '#');
  rows[20][52] = 'D';
  qb::LevelData d = qb::test::MakeLevel(rows, 3, 18, 5, 3, 4, 300);
  d.Title = title;
  d.Number = number;
  d.ToolStock = {2, 2, 2, 3, 2, 1, 1, 1};
  return d;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: make_test_levels FOLDER\n";
    return 2;
  }
  const std::filesystem::path levels = std::filesystem::path(argv[1]) / "Levels";
  std::filesystem::create_directories(levels);
  const std::pair<int, const char*> made[] = {{1, "Walk To The Door"}, {2, "Walk Again"}};
  for (const auto& [number, title] : made) {
    const auto bytes = qb::WriteLevel(Walk(number, title));
    std::ofstream out(levels / ("Beginner" + std::to_string(number) + ".lvl"), std::ios::binary);
    out.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
  }
  return 0;
}
