// The binary level file: its fields as values, the reader and the writer.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace qb {

// Slot j of the placed objects, in the order the file stores them.
struct LevelSlot {
  int32_t EntranceActive = 0;
  int32_t TrapActive = 0;
  int16_t TeleportActive = 0;
  int32_t EntranceX = 0;
  int16_t EntranceY = 0;
  int32_t TrapX = 0;
  int16_t TrapY = 0;
  int32_t TeleportX = 0;
  int16_t TeleportY = 0;
  bool operator==(const LevelSlot&) const = default;
};

struct LevelData {
  std::string Title;  // one byte per character (Latin-1)
  int32_t Skill = 0;
  int32_t Number = 0;
  int32_t CharactersTotal = 0;
  int16_t CharactersNeeded = 0;
  int32_t TimeLeft = 0;
  std::array<int16_t, 8> ToolStock{};
  std::array<LevelSlot, 6> Slots{};
  int32_t StartViewX = 0;
  int16_t StartViewY = 0;
  int16_t GridWidth = 0;
  int32_t GridHeight = 0;
  int16_t ReleaseInterval = 0;
  std::vector<int16_t> Squares;  // GridWidth * GridHeight kinds, (x, y) at x + GridWidth * y

  int16_t Square(int x, int y) const {
    return Squares.at(static_cast<std::size_t>(x + GridWidth * y));
  }
  int16_t& Square(int x, int y) { return Squares.at(static_cast<std::size_t>(x + GridWidth * y)); }
  bool operator==(const LevelData&) const = default;
};

enum class ReadStatus {
  Ok,           // a level the game plays (it may have been cut short, see `shortAt`)
  Missing,      // no level number: "This level does not exist!"
  Unsupported,  // the game refuses it; `problem` says why
};

struct LevelRead {
  ReadStatus status = ReadStatus::Ok;
  LevelData data;
  std::string problem;  // why the level is Unsupported or Missing
  std::string shortAt;  // not empty when the file ended early: the field where it ended
};

// The largest file the reader can take in: the longest title, every variant stored as the
// longest string, every 16-bit field and the largest grid, and a little room for trailing bytes.
// Anything longer is not a level file.
inline constexpr std::size_t kLevelVariants = 36;  // 4 + 5 in each of 6 slots + 2
inline constexpr std::size_t kLevelIntegers = 37;  // 1 + 1 + 8 + 4 in each of 6 slots + 3
inline constexpr std::size_t kLongestString = 32767;
inline constexpr std::size_t kMaxLevelFileBytes = kLongestString +
                                                  kLevelVariants * (2 + 2 + kLongestString) +
                                                  kLevelIntegers * 2 + 120 * 80 * 2 + 4096;

// Reads a level file as the game does: past the end a variant reads Empty and an Integer 0.
LevelRead ReadLevel(const std::vector<uint8_t>& bytes);

// The checks that make a read level unsupported; empty when the level is fine.
std::string UnsupportedProblem(const LevelData& d);

// Writes a level with canonical tags: flags as Boolean, other variants as Integer when they fit
// in 16 bits and as Long otherwise.
std::vector<uint8_t> WriteLevel(const LevelData& d);

}  // namespace qb
