// The level file reader and writer, on hand-built files: variant tags, rounding, cut-short files,
// the edges of what the game accepts and the size limit.
#include "core/level_file.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <functional>

#include "core/file_read.h"
#include "support/level_builder.h"
#include "support/level_bytes.h"

namespace qb::test {
namespace {

LevelRead Read(const LevelBytes& b) {
  return ReadLevel(b.Bytes());
}

TEST(LevelFile, WriteThenReadGivesTheSameLevel) {
  LevelData d = MakeLevel({"....D", "#####"}, 0, 0, 3, 2);
  d.ToolStock = {1, 2, 3, 4, 5, 6, 7, 8};
  const LevelRead r = ReadLevel(WriteLevel(d));
  ASSERT_EQ(r.status, ReadStatus::Ok) << r.problem;
  EXPECT_EQ(r.data, d);
  EXPECT_TRUE(r.shortAt.empty());
}

// A variant field of the file, a value it accepts, how to store it and where the reader puts it.
struct VariantField {
  const char* name;
  int32_t value;
  std::function<void(LevelBytes&, Var)> set;
  std::function<int32_t(const LevelData&)> get;
};

TEST(LevelFile, EveryNumericTagOfEveryVariantFieldReadsTheSameValue) {
  const std::vector<VariantField> fields = {
      {"tier", 2, [](LevelBytes& b, Var v) { b.Skill = v; },
       [](const LevelData& d) { return d.Skill; }},
      {"time", 70000, [](LevelBytes& b, Var v) { b.TimeLeft = v; },
       [](const LevelData& d) { return d.TimeLeft; }},
      {"entrance flag", -1, [](LevelBytes& b, Var v) { b.Slots[2].EntranceActive = v; },
       [](const LevelData& d) { return d.Slots[2].EntranceActive; }},
      {"grid height", 3, [](LevelBytes& b, Var v) { b.GridHeight = v; },
       [](const LevelData& d) { return static_cast<int32_t>(d.GridHeight); }},
  };
  for (const VariantField& f : fields) {
    SCOPED_TRACE(f.name);
    const auto v = f.value;
    std::vector<std::pair<const char*, Var>> encodings = {
        {"Single", Var::Single(static_cast<float>(v))},
        {"Double", Var::Double(v)},
        {"String", Var::String(std::to_string(v))},
        {"String with blanks", Var::String("  " + std::to_string(v) + " ")},
    };
    if (v >= INT16_MIN && v <= INT16_MAX)
      encodings.push_back({"Integer", Var::Integer(static_cast<int16_t>(v))});
    if (v == -1) encodings.push_back({"Boolean", Var::Boolean(true)});
    LevelBytes reference;
    f.set(reference, Var::Long(v));
    const LevelRead expected = Read(reference);
    ASSERT_EQ(expected.status, ReadStatus::Ok) << expected.problem;
    EXPECT_EQ(f.get(expected.data), v);
    for (const auto& [tagName, encoding] : encodings) {
      SCOPED_TRACE(tagName);
      LevelBytes b;
      f.set(b, encoding);
      const LevelRead r = Read(b);
      ASSERT_EQ(r.status, ReadStatus::Ok) << r.problem;
      EXPECT_EQ(r.data, expected.data);
    }
  }
}

TEST(LevelFile, FloatingValuesRoundHalvesToEven) {
  const std::vector<std::pair<double, int32_t>> cases = {
      {2.5, 2}, {3.5, 4}, {0.5, 0}, {-2.5, -2}, {2.4999, 2}, {2.5001, 3}, {299.7, 300}};
  for (const auto& [value, whole] : cases) {
    SCOPED_TRACE(value);
    LevelBytes d;
    d.TimeLeft = Var::Double(value);
    EXPECT_EQ(Read(d).data.TimeLeft, whole);
    LevelBytes s;
    s.TimeLeft = Var::Single(static_cast<float>(value));
    EXPECT_EQ(Read(s).data.TimeLeft, whole);
  }
}

// The grid is stored column by column; a file cut inside it loads with Empty squares.
TEST(LevelFile, AFileCutInsideItsGridLoadsWithEmptySquares) {
  LevelBytes b;
  b.Columns = {2, 2, 2, 5, 5, 5, 6, 6, 6, 16, 16, 16};
  const auto full = b.Bytes();
  const std::size_t cut = b.GridOffset() + 5 * 2 + 1;  // five whole squares, a byte of the sixth
  const LevelRead r = ReadLevel(std::vector<uint8_t>(full.begin(), full.begin() + cut));
  ASSERT_EQ(r.status, ReadStatus::Ok) << r.problem;
  EXPECT_EQ(r.shortAt, "grid");
  EXPECT_EQ(r.data.Square(0, 2), 2);
  EXPECT_EQ(r.data.Square(1, 1), 5);
  EXPECT_EQ(r.data.Square(1, 2), 0);  // half a square reads Empty
}

// Writes the bytes to a file of the temporary folder and returns its path.
std::string Written(const std::vector<uint8_t>& bytes) {
  const auto path =
      std::filesystem::temp_directory_path() / ("quorbit-largest-" + std::to_string(::getpid()));
  std::ofstream(path, std::ios::binary)
      .write(reinterpret_cast<const char*>(bytes.data()),
             static_cast<std::streamsize>(bytes.size()));
  return path.string();
}

// The limit holds the largest level the reader takes in: the longest title, every variant stored
// as the longest string and the largest grid. One byte over the limit is refused.
TEST(LevelFile, TheLargestLevelLayoutIsReadAndOneByteMoreIsNot) {
  const auto longest = [](int v) {
    std::string s(32767, ' ');
    const std::string n = std::to_string(v);
    return Var::String(s.replace(0, n.size(), n));
  };
  LevelBytes b;
  b.Title = std::string(32767, 'T');
  b.Skill = longest(1);
  b.Number = longest(7);
  b.CharactersTotal = longest(5);
  b.TimeLeft = longest(200);
  for (SlotBytes& s : b.Slots)
    s.EntranceActive = s.TrapActive = s.EntranceX = s.TrapX = s.TeleportX = longest(0);
  b.Slots[0].EntranceActive = longest(-1);
  b.StartViewX = longest(0);
  b.GridWidth = 120;
  b.GridHeight = longest(80);
  b.Columns.assign(120 * 80, 2);
  b.Columns[0] = 16;
  b.Columns.back() = 8;
  std::vector<uint8_t> bytes = b.Bytes();
  const std::string path = Written(bytes);
  const FileRead largest = ReadSmallFile(path, kMaxLevelFileBytes);
  ASSERT_TRUE(largest.bytes) << largest.error;
  const LevelRead r = ReadLevel(*largest.bytes);
  ASSERT_EQ(r.status, ReadStatus::Ok) << r.problem;
  EXPECT_EQ(r.data.Square(119, 79), 8);
  bytes.resize(kMaxLevelFileBytes + 1);
  EXPECT_FALSE(ReadSmallFile(Written(bytes), kMaxLevelFileBytes).bytes);
  std::filesystem::remove(path);
}

}  // namespace
}  // namespace qb::test
