// The text form of levels: round trips through text and binary, and errors that name their line.
#include "leveltext/level_text.h"

#include <gtest/gtest.h>

#include <random>

#include "support/level_builder.h"

namespace qb::test {
namespace {

using leveltext::Diagnostic;
using leveltext::ParseLevelText;
using leveltext::PrintLevelText;

// A level as the printer writes it: every kind of line and every grid character.
const char* const kFullText =
    "title: Caf\xC3\xA9 \"Deluxe\"\n"
    "tier: Advanced\n"
    "number: 12\n"
    "characters: 30\n"
    "needed: 25\n"
    "time: 40000\n"
    "release: 7\n"
    "tools: climb=1 build=12 laser=3\n"
    "view: 0 0\n"
    "entrance 0: 1 1\n"
    "entrance 3: 17 0\n"
    "entrance 4: 9 -2 inactive\n"
    "trap 2: 5 2\n"
    "teleport 0: 2 0\n"
    "teleport 1: 16 2\n"
    "grid:\n"
    ".1#okgbBMN~^!cCZDT\n"
    "..................\n"
    "TDZCc!^~NMBbgko#1.\n";

std::string Errors(const leveltext::ParsedLevel& p) {
  std::string s;
  for (const Diagnostic& d : p.diagnostics)
    s += std::to_string(d.line) + (d.warning ? " warning: " : " error: ") + d.message + "\n";
  return s;
}

TEST(LevelText, PrintingAParsedLevelGivesTheSameText) {
  const auto parsed = ParseLevelText(kFullText);
  ASSERT_TRUE(parsed.ok()) << Errors(parsed);
  const LevelData& d = parsed.data;
  EXPECT_EQ(d.Title, "Caf\xE9 \"Deluxe\"");  // one byte per character
  EXPECT_EQ(d.ToolStock, (std::array<int16_t, 8>{1, 0, 12, 0, 0, 0, 0, 3}));
  for (int k = 0; k < 18; ++k) EXPECT_EQ(d.Square(k, 0), k);
  EXPECT_EQ(d.Slots[4].EntranceActive, 0);
  EXPECT_EQ(d.Slots[4].EntranceY, -2);
  EXPECT_EQ(PrintLevelText(d), kFullText);
}

TEST(LevelText, HeaderOrderCommentsAndLineEndingsDoNotChangeTheLevel) {
  const std::string loose =
      "\xEF\xBB\xBF# a comment line\r\n"
      "  release: 7   # cycles\r\n"
      "tier: 2\r\n"
      "tools: laser=3 climb=1 build=12\r\n"
      "title: Caf\xC3\xA9 \"Deluxe\"   # the name\r\n"
      "number: +12\r\n"
      "\r\n"
      "characters: 30\r\n"
      "needed: 25\r\n"
      "time: 40000\r\n"
      "teleport 1: 16 2\r\n"
      "teleport 0: 2 0\r\n"
      "trap 2: 5 2\r\n"
      "entrance 4: 9 -2 inactive\r\n"
      "entrance 3: 17 0\r\n"
      "entrance 0: 1 1\r\n"
      "grid:   # rows follow\r\n"
      ".1#okgbBMN~^!cCZDT\r\n"
      "..................\r\n"
      "TDZCc!^~NMBbgko#1.\r\n"
      "\r\n\r\n";
  const auto parsed = ParseLevelText(loose);
  ASSERT_TRUE(parsed.ok()) << Errors(parsed);
  EXPECT_EQ(PrintLevelText(parsed.data), kFullText);
}

// Random levels, with the awkward titles a text form has to quote.
LevelData RandomLevel(std::mt19937& rng) {
  const auto pick = [&](int lo, int hi) { return std::uniform_int_distribution<int>(lo, hi)(rng); };
  static const std::vector<std::string> titles = {
      "",      "Plain", " leading blank", "trailing blank ", "Level #3", "#hash",
      "\"q\"", "a\"b",  "\xE9t\xE9",      "x # y \"z\"",     "   "};
  LevelData d;
  d.Title = titles[static_cast<std::size_t>(pick(0, static_cast<int>(titles.size()) - 1))];
  d.Skill = pick(0, 3);
  d.Number = pick(1, 20);
  d.CharactersTotal = pick(0, 100);
  d.CharactersNeeded = static_cast<int16_t>(pick(0, 120));
  d.TimeLeft = pick(0, 1) ? pick(0, 32767) : pick(32768, 2000000);
  for (auto& s : d.ToolStock) s = static_cast<int16_t>(pick(0, 3) ? 0 : pick(1, 99));
  d.GridWidth = static_cast<int16_t>(pick(1, 120));
  d.GridHeight = pick(1, 80);
  d.StartViewX = pick(0, 80);
  d.StartViewY = static_cast<int16_t>(pick(0, 40));
  d.ReleaseInterval = static_cast<int16_t>(pick(0, 50));
  const auto inside = [&](int32_t& x, int16_t& y) {
    x = pick(0, d.GridWidth - 1);
    y = static_cast<int16_t>(pick(0, d.GridHeight - 1));
  };
  for (LevelSlot& s : d.Slots) {
    s.EntranceActive = pick(0, 1) ? -1 : 0;
    s.TrapActive = pick(0, 2) ? 0 : -1;
    s.TeleportActive = static_cast<int16_t>(pick(0, 2) ? 0 : -1);
    inside(s.EntranceX, s.EntranceY);
    inside(s.TrapX, s.TrapY);
    inside(s.TeleportX, s.TeleportY);
    if (!s.TrapActive && pick(0, 1)) s.TrapX = s.TrapY = 0;
    if (!s.TeleportActive && pick(0, 1)) s.TeleportX = pick(-300, 300);  // kept though inactive
  }
  d.Squares.resize(static_cast<std::size_t>(d.GridWidth * d.GridHeight));
  for (auto& k : d.Squares) k = static_cast<int16_t>(pick(0, 3) ? 0 : pick(0, 17));
  return d;
}

TEST(LevelText, BinaryToTextToBinaryGivesTheSameBytes) {
  std::mt19937 rng(20240611);
  for (int i = 0; i < 300; ++i) {
    const LevelData d = RandomLevel(rng);
    const auto bytes = WriteLevel(d);
    const LevelRead read = ReadLevel(bytes);
    ASSERT_EQ(read.status, ReadStatus::Ok) << read.problem;
    const std::string text = PrintLevelText(read.data);
    const auto parsed = ParseLevelText(text);
    ASSERT_TRUE(parsed.ok()) << Errors(parsed) << text.substr(0, 400);
    ASSERT_EQ(WriteLevel(parsed.data), bytes) << text.substr(0, 400);
  }
}

// The text of a small good level with line `n` (counted from 1) replaced by `line`.
std::string WithLine(int n, const std::string& line) {
  std::vector<std::string> lines = {
      "title: Small", "tier: Beginner", "number: 3",      "characters: 4", "needed: 2",
      "time: 100",    "release: 3",     "tools: build=1", "view: 0 0",     "entrance 0: 0 0",
      "grid:",        "....",           "...D",           "####"};
  lines[static_cast<std::size_t>(n - 1)] = line;
  std::string text;
  for (const auto& l : lines) text += l + "\n";
  return text;
}

TEST(LevelText, EveryErrorNamesItsLine) {
  struct Case {
    std::string text;
    int line;
    const char* says;
  };
  const std::vector<Case> cases = {
      {WithLine(3, "colour: red"), 3, "unknown key \"colour\""},
      {WithLine(4, "characters: 101"), 4, "characters 101 is not 0 to 100"},
      {WithLine(3, "number: 99999999999999999999"), 3, "is not 1 to 20"},
      {WithLine(8, "tools: build=1 hammer=2"), 8, "unknown tool \"hammer\""},
      {WithLine(8, "tools: build=1 build=2"), 8, "build is given twice"},
      {WithLine(9, "view: 81 0"), 9, "view column 81 is not 0 to 80"},
      {WithLine(10, "entrance 0: 4 0"), 10, "entrance 0 at (4, 0) is outside the 4 by 3 level"},
      {WithLine(1, "title: Snow \xE2\x98\x83"), 1, "U+2603, which is not Latin-1"},
      {WithLine(6, "release: 8"), 7, "release is already given on line 6"},
      {WithLine(13, "..D"), 13, "ragged grid: row 1 has 3 squares where the first row has 4"},
      {WithLine(12, ". .."), 12, "unknown grid character ' ' in column 1"},
      {WithLine(11, "grid"), 14, "the file ends without a \"grid:\" line"},
      {WithLine(6, "# no time"), 11, "the key \"time:\" is missing"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.says);
    const auto parsed = ParseLevelText(c.text);
    ASSERT_FALSE(parsed.ok());
    bool found = false;
    for (const Diagnostic& d : parsed.diagnostics) {
      EXPECT_GT(d.line, 0) << d.message;
      if (!d.warning && d.line == c.line && d.message.find(c.says) != std::string::npos)
        found = true;
    }
    EXPECT_TRUE(found) << Errors(parsed);
  }
}

TEST(LevelText, GridsTallerThanEightyRowsAreRefusedAtTheEightyFirstRow) {
  std::string text = WithLine(14, "####");
  for (int i = 0; i < 78; ++i) text += "....\n";  // 81 rows in all
  const auto parsed = ParseLevelText(text);
  ASSERT_FALSE(parsed.ok());
  EXPECT_EQ(parsed.diagnostics.at(0).line, 11 + 81);
  EXPECT_NE(parsed.diagnostics.at(0).message.find("81 rows"), std::string::npos);
}

// A compiled level given to the text compiler: one clear error, not its bytes line by line.
TEST(HostileText, ABinaryFileIsOneErrorThatNamesDecompile) {
  const auto bytes = WriteLevel(MakeLevel({"....D", "#####"}, 0, 0));
  const auto parsed = ParseLevelText(std::string(bytes.begin(), bytes.end()));
  ASSERT_EQ(parsed.diagnostics.size(), 1u);
  EXPECT_FALSE(parsed.ok());
  EXPECT_NE(parsed.diagnostics[0].message.find("quorbit-level decompile"), std::string::npos);
  EXPECT_EQ(parsed.diagnostics[0].line, 1);
}

// Text from the file quoted in a message cannot drive the terminal and stays short.
TEST(HostileText, QuotedFileTextHasNoControlBytesAndIsCut) {
  const std::string key = "\x1b[2J" + std::string(200, 'k');
  const auto parsed = ParseLevelText(key + ": 1\ngrid:\nD\n");
  ASSERT_FALSE(parsed.diagnostics.empty());
  const std::string& message = parsed.diagnostics[0].message;
  EXPECT_EQ(message.find('\x1b'), std::string::npos) << message;
  EXPECT_NE(message.find("\\x1B[2J"), std::string::npos) << message;
  EXPECT_LT(message.size(), 100u) << message;
}

}  // namespace
}  // namespace qb::test
