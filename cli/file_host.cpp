// A host for the command-line tools: reads real files, plays nothing, shows nothing.
#include "file_host.h"

#include <fstream>
#include <iterator>

namespace qb {

std::optional<std::vector<uint8_t>> ReadBytes(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in) return std::nullopt;
  return std::vector<uint8_t>(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

std::optional<std::vector<uint8_t>> FileHost::ReadFile(const std::string& path) {
  return ReadBytes(path);
}

}  // namespace qb
