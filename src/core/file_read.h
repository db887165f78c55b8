// Reading a whole file from outside without trusting it: only a regular file is opened, so a
// folder, a device or a pipe with no writer never blocks or floods memory, and only up to a limit.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace qb {

// A generous bound for a level text or a replay: either is a few kilobytes in practice.
inline constexpr std::size_t kMaxTextFileBytes = std::size_t{4} << 20;

struct FileRead {
  std::optional<std::vector<uint8_t>> bytes;  // the whole file, when it could be read
  std::string error;                          // otherwise why not, for a message
};

// The file at `path` when it is a regular file of at most `limit` bytes. At most limit + 1 bytes
// are ever read, whatever the file claims its size to be.
FileRead ReadSmallFile(const std::string& path, std::size_t limit);

}  // namespace qb
