// Writes the small levels the end-to-end run plays: FOLDER/Levels/Beginner1.lvl to 3.
#include <filesystem>
#include <fstream>
#include <iostream>

#include "test_levels.h"

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: make_test_levels FOLDER\n";
    return 2;
  }
  const std::filesystem::path levels = std::filesystem::path(argv[1]) / "Levels";
  std::filesystem::create_directories(levels);
  const std::pair<int, const char*> made[] = {{1, "Walk To The Door"}, {2, "Walk Again"}, {3, ""}};
  for (const auto& [number, title] : made) {
    const auto bytes = qb::WriteLevel(number == 3 ? qb::test::PacingLevel(number)
                                                  : qb::test::WalkLevel(number, title));
    std::ofstream out(levels / ("Beginner" + std::to_string(number) + ".lvl"), std::ios::binary);
    out.write(reinterpret_cast<const char*>(bytes.data()),
              static_cast<std::streamsize>(bytes.size()));
  }
  return 0;
}
