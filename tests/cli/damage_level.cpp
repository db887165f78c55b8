// Writes damaged copies of a level file for the level tool's process tests.
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>
#include <vector>

// usage: damage_level IN.lvl OUT.lvl kind40|short|empty
// kind40: the last square of the grid becomes kind 40; short: the file ends halfway through
// its grid; empty: zero bytes.
int main(int argc, char** argv) {
  if (argc != 4) {
    std::cerr << "usage: damage_level IN.lvl OUT.lvl kind40|short|empty\n";
    return 2;
  }
  std::ifstream in(argv[1], std::ios::binary);
  std::vector<char> bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
  const std::string how = argv[3];
  if (bytes.size() < 4) {
    std::cerr << "damage_level: " << argv[1] << " is too small\n";
    return 2;
  }
  if (how == "kind40") {
    bytes[bytes.size() - 2] = 40;
    bytes[bytes.size() - 1] = 0;
  } else if (how == "short") {
    bytes.resize(bytes.size() - bytes.size() / 4);
  } else if (how == "empty") {
    bytes.clear();
  } else {
    std::cerr << "damage_level: unknown damage " << how << "\n";
    return 2;
  }
  std::ofstream out(argv[2], std::ios::binary | std::ios::trunc);
  out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  return out ? 0 : 2;
}
