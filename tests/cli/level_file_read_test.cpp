// Reading hand-built binary level files: variant tags, short files and the files the game refuses.
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <functional>

#include "core/file_read.h"
#include "core/level_file.h"
#include "level_bytes.h"

namespace qb::test {
namespace {

LevelRead Read(const LevelBytes& b) {
  return ReadLevel(b.Bytes());
}

// A variant field of the file, how to store a value in it and where the reader puts it.
struct VariantField {
  const char* name;
  int32_t value;  // a value the level accepts in this field
  std::function<void(LevelBytes&, Var)> set;
  std::function<int32_t(const LevelData&)> get;
};

std::vector<VariantField> VariantFields() {
  return {
      {"tier", 2, [](LevelBytes& b, Var v) { b.Skill = v; },
       [](const LevelData& d) { return d.Skill; }},
      {"level number", 19, [](LevelBytes& b, Var v) { b.Number = v; },
       [](const LevelData& d) { return d.Number; }},
      {"character count", 100, [](LevelBytes& b, Var v) { b.CharactersTotal = v; },
       [](const LevelData& d) { return d.CharactersTotal; }},
      {"time", 70000, [](LevelBytes& b, Var v) { b.TimeLeft = v; },
       [](const LevelData& d) { return d.TimeLeft; }},
      {"entrance flag", -1, [](LevelBytes& b, Var v) { b.Slots[2].EntranceActive = v; },
       [](const LevelData& d) { return d.Slots[2].EntranceActive; }},
      {"trap flag", 1, [](LevelBytes& b, Var v) { b.Slots[5].TrapActive = v; },
       [](const LevelData& d) { return d.Slots[5].TrapActive; }},
      {"entrance column", 3, [](LevelBytes& b, Var v) { b.Slots[0].EntranceX = v; },
       [](const LevelData& d) { return d.Slots[0].EntranceX; }},
      {"trap column", 2, [](LevelBytes& b, Var v) { b.Slots[4].TrapX = v; },
       [](const LevelData& d) { return d.Slots[4].TrapX; }},
      {"teleport column", 1, [](LevelBytes& b, Var v) { b.Slots[3].TeleportX = v; },
       [](const LevelData& d) { return d.Slots[3].TeleportX; }},
      {"start view column", 80, [](LevelBytes& b, Var v) { b.StartViewX = v; },
       [](const LevelData& d) { return d.StartViewX; }},
      {"grid height", 3, [](LevelBytes& b, Var v) { b.GridHeight = v; },
       [](const LevelData& d) { return static_cast<int32_t>(d.GridHeight); }},
  };
}

TEST(LevelFileRead, EveryNumericTagOfEveryVariantFieldReadsTheSameValue) {
  for (const VariantField& f : VariantFields()) {
    SCOPED_TRACE(f.name);
    const auto v = f.value;
    std::vector<std::pair<const char*, Var>> encodings = {
        {"Long", Var::Long(v)},
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
      EXPECT_TRUE(r.shortAt.empty());
    }
  }
}

TEST(LevelFileRead, EmptyAndNullReadAsZero) {
  for (Var v : {Var::Empty(), Var::Null()}) {
    LevelBytes time;
    time.TimeLeft = v;
    const LevelRead r = Read(time);
    ASSERT_EQ(r.status, ReadStatus::Ok);
    EXPECT_EQ(r.data.TimeLeft, 0);

    // An entrance whose flag is Empty or Null is inactive.
    LevelBytes flag;
    flag.Slots[0].EntranceActive = v;
    EXPECT_EQ(Read(flag).data.Slots[0].EntranceActive, 0);

    // No level number means no level.
    LevelBytes number;
    number.Number = v;
    EXPECT_EQ(Read(number).status, ReadStatus::Missing);
  }
}

TEST(LevelFileRead, FloatingValuesRoundHalvesToEven) {
  const std::vector<std::pair<double, int32_t>> cases = {
      {2.5, 2}, {3.5, 4}, {0.5, 0}, {1.5, 2}, {-2.5, -2}, {2.4999, 2}, {2.5001, 3}, {299.7, 300}};
  for (const auto& [value, whole] : cases) {
    SCOPED_TRACE(value);
    LevelBytes d;
    d.TimeLeft = Var::Double(value);
    EXPECT_EQ(Read(d).data.TimeLeft, whole);
    LevelBytes s;
    s.TimeLeft = Var::Single(static_cast<float>(value));
    EXPECT_EQ(Read(s).data.TimeLeft, whole);
  }
  // A column given as 2.5 is column 2, inside a 4-wide level.
  LevelBytes column;
  column.Slots[0].EntranceX = Var::Double(2.5);
  EXPECT_EQ(Read(column).data.Slots[0].EntranceX, 2);
}

TEST(LevelFileRead, BooleanTagsAreNumbers) {
  LevelBytes on;
  on.TimeLeft = Var::Boolean(true);
  EXPECT_EQ(Read(on).data.TimeLeft, -1);
  LevelBytes off;
  off.Slots[0].EntranceActive = Var::Boolean(false);
  EXPECT_EQ(Read(off).data.Slots[0].EntranceActive, 0);
}

TEST(LevelFileRead, TextsThatAreNotNumbersAndUnknownTagsAreRefused) {
  for (const std::string text : {"abc", "", "12abc", "   "}) {
    SCOPED_TRACE(text);
    LevelBytes b;
    b.TimeLeft = Var::String(text);
    const LevelRead r = Read(b);
    EXPECT_EQ(r.status, ReadStatus::Unsupported);
    EXPECT_NE(r.problem.find("time"), std::string::npos) << r.problem;
  }
  // Date (7), Object (9), Byte (17) and Array (0x2002) are not tags a level uses.
  for (int16_t tag : {7, 9, 17, 0x2002}) {
    SCOPED_TRACE(tag);
    LevelBytes b;
    b.CharactersTotal = Var{tag, Var::Le(5, 2)};
    const LevelRead r = Read(b);
    EXPECT_EQ(r.status, ReadStatus::Unsupported);
    EXPECT_NE(r.problem.find("tag " + std::to_string(tag)), std::string::npos) << r.problem;
  }
}

TEST(LevelFileRead, ShortFilesBeforeTheLevelNumberAreMissingLevels) {
  EXPECT_EQ(ReadLevel({}).status, ReadStatus::Missing);
  const auto full = LevelBytes().Bytes();
  // Cut inside the title, after the title, inside the tier, inside the level number.
  for (std::size_t n :
       {std::size_t{1}, std::size_t{5}, std::size_t{11}, std::size_t{13}, std::size_t{16}}) {
    SCOPED_TRACE(n);
    const LevelRead r = ReadLevel(std::vector<uint8_t>(full.begin(), full.begin() + n));
    EXPECT_EQ(r.status, ReadStatus::Missing);
  }
}

// The fields read as 0 past the end are not blamed: the problem is the file's early end.
TEST(LevelFileRead, AFileEndingBeforeItsGridIsRefusedAsEndingEarly) {
  const LevelBytes b;
  const auto full = b.Bytes();
  const std::size_t afterNumber = 2 + 9 + 4 + 4;  // title length, title, tier, number
  const LevelRead r = ReadLevel(std::vector<uint8_t>(full.begin(), full.begin() + afterNumber));
  EXPECT_EQ(r.status, ReadStatus::Unsupported);
  EXPECT_EQ(r.shortAt, "character count");
  EXPECT_EQ(r.problem,
            "the file ends early, after 19 bytes, in the character count, before the grid");
  EXPECT_EQ(r.data.Number, 7);
  // One byte of the grid width: grid width, Integer grid height and release interval are 8 bytes.
  const std::size_t inWidth = b.GridOffset() - 7;
  const LevelRead w = ReadLevel(std::vector<uint8_t>(full.begin(), full.begin() + inWidth));
  EXPECT_EQ(w.status, ReadStatus::Unsupported);
  EXPECT_NE(
      w.problem.find("ends early, after " + std::to_string(inWidth) + " bytes, in the grid width"),
      std::string::npos)
      << w.problem;
}

TEST(LevelFileRead, AFileCutInsideItsGridLoadsWithEmptySquares) {
  LevelBytes b;
  b.Columns = {2, 2, 2, 5, 5, 5, 6, 6, 6, 16, 16, 16};
  const auto full = b.Bytes();
  // Five whole squares, then one byte of the sixth.
  const std::size_t cut = b.GridOffset() + 5 * 2 + 1;
  const LevelRead r = ReadLevel(std::vector<uint8_t>(full.begin(), full.begin() + cut));
  ASSERT_EQ(r.status, ReadStatus::Ok) << r.problem;
  EXPECT_EQ(r.shortAt, "grid");
  EXPECT_EQ(r.data.Square(1, 1), 5);  // the fifth square, column 1 row 1
  EXPECT_EQ(r.data.Square(1, 2), 0);  // half a square reads Empty
  EXPECT_EQ(r.data.Square(3, 0), 0);
  EXPECT_EQ(r.data.Squares.size(), 12u);
}

TEST(LevelFileRead, TheGridIsStoredColumnByColumn) {
  LevelBytes b;
  b.Columns = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11};
  const LevelRead r = Read(b);
  ASSERT_EQ(r.status, ReadStatus::Ok);
  EXPECT_EQ(r.data.Square(0, 2), 2);
  EXPECT_EQ(r.data.Square(1, 0), 3);
  EXPECT_EQ(r.data.Square(3, 1), 10);
}

TEST(LevelFileRead, TheFullSizeGridIsRead) {
  LevelBytes b;
  b.GridWidth = 120;
  b.GridHeight = Var::Integer(80);
  b.Columns.clear();
  for (int x = 0; x < 120; ++x)
    for (int y = 0; y < 80; ++y) b.Columns.push_back(static_cast<int16_t>((x * 7 + y) % 18));
  b.Slots[0].EntranceX = Var::Integer(119);
  b.Slots[0].EntranceY = 79;
  const LevelRead r = Read(b);
  ASSERT_EQ(r.status, ReadStatus::Ok) << r.problem;
  EXPECT_TRUE(r.shortAt.empty());
  EXPECT_EQ(r.data.Square(119, 79), (119 * 7 + 79) % 18);
  EXPECT_EQ(r.data.Square(50, 3), (50 * 7 + 3) % 18);
}

TEST(LevelFileRead, LevelsTheGameCannotPlayAreRefusedWithAReason) {
  struct Case {
    const char* what;
    std::function<void(LevelBytes&)> change;
    const char* reason;
  };
  const auto sized = [](LevelBytes& b, int w, int h) {
    b.GridWidth = static_cast<int16_t>(w);
    b.GridHeight = Var::Integer(static_cast<int16_t>(h));
    b.Columns.assign(static_cast<std::size_t>(std::max(w, 0) * std::max(h, 0)), 0);
  };
  const std::vector<Case> cases = {
      {"width 0", [&](LevelBytes& b) { sized(b, 0, 3); }, "grid width 0"},
      {"width 121", [&](LevelBytes& b) { sized(b, 121, 3); }, "grid width 121"},
      {"height 0", [&](LevelBytes& b) { sized(b, 4, 0); }, "grid height 0"},
      {"height 81", [&](LevelBytes& b) { sized(b, 4, 81); }, "grid height 81"},
      {"kind 18", [](LevelBytes& b) { b.Columns[4] = 18; }, "kind 18"},
      {"kind 40", [](LevelBytes& b) { b.Columns[11] = 40; }, "kind 40"},
      {"kind -1", [](LevelBytes& b) { b.Columns[0] = -1; }, "kind -1"},
      {"entrance right of the level", [](LevelBytes& b) { b.Slots[0].EntranceX = Var::Integer(4); },
       "entrance 0"},
      {"entrance below the level", [](LevelBytes& b) { b.Slots[0].EntranceY = 3; }, "entrance 0"},
      {"trap left of the level",
       [](LevelBytes& b) {
         b.Slots[3].TrapActive = Var::Boolean(true);
         b.Slots[3].TrapX = Var::Integer(-1);
       },
       "trap 3"},
      {"teleport below the level",
       [](LevelBytes& b) {
         b.Slots[5].TeleportActive = -1;
         b.Slots[5].TeleportY = 3;
       },
       "teleport 5"},
      {"characters -1", [](LevelBytes& b) { b.CharactersTotal = Var::Integer(-1); },
       "character count -1"},
      {"characters 101", [](LevelBytes& b) { b.CharactersTotal = Var::Integer(101); },
       "character count 101"},
      {"tier 4", [](LevelBytes& b) { b.Skill = Var::Integer(4); }, "tier 4"},
      {"negative title length", [](LevelBytes& b) { b.Title.clear(); }, ""},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    LevelBytes b;
    c.change(b);
    auto bytes = b.Bytes();
    if (std::string(c.what) == "negative title length") bytes[0] = bytes[1] = 0xFF;
    const LevelRead r = ReadLevel(bytes);
    EXPECT_EQ(r.status, ReadStatus::Unsupported);
    EXPECT_NE(r.problem.find(c.reason), std::string::npos) << r.problem;
  }
}

TEST(LevelFileRead, InactiveSlotsOutsideTheLevelAndTheEdgeCountsAreAccepted) {
  LevelBytes b;
  b.Slots[1].EntranceX = Var::Integer(500);
  b.Slots[2].TrapY = -7;
  b.Slots[3].TeleportX = Var::Integer(4);
  EXPECT_EQ(Read(b).status, ReadStatus::Ok);
  for (int16_t count : {0, 100}) {
    LevelBytes c;
    c.CharactersTotal = Var::Integer(count);
    EXPECT_EQ(Read(c).status, ReadStatus::Ok) << count;
  }
}

// Writes the bytes to a file of the temporary folder and returns its path.
std::string Written(const char* name, const std::vector<uint8_t>& bytes) {
  const auto path = std::filesystem::temp_directory_path() / (name + std::to_string(::getpid()));
  std::ofstream(path, std::ios::binary)
      .write(reinterpret_cast<const char*>(bytes.data()),
             static_cast<std::streamsize>(bytes.size()));
  return path.string();
}

// The limit holds the largest level the reader takes in: the longest title, every variant stored
// as the longest string and the largest grid. One byte over the limit is refused.
TEST(SmallFile, TheLargestLevelLayoutIsReadAndOneByteMoreIsNot) {
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
  std::vector<uint8_t> bytes = b.Bytes();
  const std::string path = Written("quorbit-largest-", bytes);
  const FileRead largest = ReadSmallFile(path, kMaxLevelFileBytes);
  ASSERT_TRUE(largest.bytes) << largest.error;
  EXPECT_EQ(ReadLevel(*largest.bytes).status, ReadStatus::Ok) << ReadLevel(bytes).problem;
  bytes.resize(kMaxLevelFileBytes + 1);
  EXPECT_FALSE(ReadSmallFile(Written("quorbit-largest-", bytes), kMaxLevelFileBytes).bytes);
  std::filesystem::remove(path);
}

}  // namespace
}  // namespace qb::test
