// Parsing the text form of a level into a LevelData, with errors that name their line.
#include <algorithm>
#include <charconv>
#include <cstdio>
#include <map>
#include <optional>

#include "core/quoted.h"
#include "leveltext/level_legend.h"
#include "leveltext/level_ranges.h"
#include "leveltext/level_text.h"

namespace qb::leveltext {
namespace {

constexpr int kMaxWidth = 120;
constexpr int kMaxHeight = 80;

std::string_view Trim(std::string_view s) {
  const auto isSpace = [](char c) { return c == ' ' || c == '\t' || c == '\r'; };
  while (!s.empty() && isSpace(s.front())) s.remove_prefix(1);
  while (!s.empty() && isSpace(s.back())) s.remove_suffix(1);
  return s;
}

// A '#' at the start of the value or after whitespace starts a comment.
std::string_view StripComment(std::string_view s) {
  for (std::size_t i = 0; i < s.size(); ++i)
    if (s[i] == '#' && (i == 0 || s[i - 1] == ' ' || s[i - 1] == '\t')) return s.substr(0, i);
  return s;
}

std::vector<std::string_view> Words(std::string_view s) {
  std::vector<std::string_view> out;
  std::size_t i = 0;
  while (i < s.size()) {
    while (i < s.size() && (s[i] == ' ' || s[i] == '\t')) ++i;
    const std::size_t start = i;
    while (i < s.size() && s[i] != ' ' && s[i] != '\t') ++i;
    if (i > start) out.push_back(s.substr(start, i - start));
  }
  return out;
}

class Parser {
 public:
  ParsedLevel Run(std::string_view text);

 private:
  void Error(int line, std::string message) {
    out_.diagnostics.push_back({line, false, std::move(message)});
  }
  void Warn(int line, std::string message) {
    out_.diagnostics.push_back({line, true, std::move(message)});
  }

  std::optional<long long> Number(int line, std::string_view what, std::string_view text,
                                  ValueRange range);
  void HeaderLine(int line, std::string_view raw);
  void Title(int line, std::string_view raw, std::size_t valueStart);
  void NotLatin1(int line, unsigned code);
  void Tools(int line, std::string_view value);
  void Slot(int line, std::string_view kind, std::string_view slotText, std::string_view value);
  void Grid(int gridLine, const std::vector<std::string_view>& rows);
  void CheckAfterGrid();

  ParsedLevel out_;
  LevelData& d_ = out_.data;
  std::map<std::string, int> seen_;  // key -> line where it was given
  struct SlotLine {
    int line;
    std::string what;
    int slot;
  };
  std::vector<SlotLine> activeSlots_;
};

std::optional<long long> Parser::Number(int line, std::string_view what, std::string_view text,
                                        ValueRange range) {
  long long v = 0;
  const char* first = text.data();
  const char* last = text.data() + text.size();
  if (!text.empty() && text[0] == '+') ++first;
  const auto [end, ec] = std::from_chars(first, last, v);
  if (text.empty() || ec == std::errc::invalid_argument || end != last) {
    Error(line, std::string(what) + ": " + Quoted(text) + " is not a whole number");
    return std::nullopt;
  }
  if (ec == std::errc::result_out_of_range || !range.Holds(v)) {
    Error(line, OutOfRange(what, text, range));
    return std::nullopt;
  }
  return v;
}

void Parser::NotLatin1(int line, unsigned code) {
  char hex[16];
  std::snprintf(hex, sizeof hex, "U+%04X", code);
  Error(line, std::string("the title has the character ") + hex +
                  ", which is not Latin-1 (levels keep one byte per character)");
}

// The title is kept as one byte per character, so only Latin-1 characters can be written.
void Parser::Title(int line, std::string_view raw, std::size_t valueStart) {
  std::string_view value = Trim(raw.substr(valueStart));
  std::string_view text;
  if (!value.empty() && value[0] == '"') {
    // A quoted title runs to the first quote that only blanks or a comment follow. As anywhere
    // else, a '#' starts a comment only after a blank: in "a"#b" the title is a"#b.
    bool closed = false;
    for (std::size_t i = 1; i < value.size(); ++i) {
      if (value[i] != '"') continue;
      const std::string_view after = value.substr(i + 1);
      const std::string_view rest = Trim(after);
      if (rest.empty() || (rest[0] == '#' && (after[0] == ' ' || after[0] == '\t'))) {
        text = value.substr(1, i - 1);
        closed = true;
        break;
      }
    }
    if (!closed) return Error(line, "the quoted title has no closing quote");
  } else {
    text = Trim(StripComment(value));
  }
  std::string bytes;
  for (std::size_t i = 0; i < text.size();) {
    const auto c = static_cast<unsigned char>(text[i]);
    unsigned code = c;
    std::size_t len = 1;
    if (c >= 0x80) {
      if ((c & 0xE0) == 0xC0 && i + 1 < text.size() &&
          (static_cast<unsigned char>(text[i + 1]) & 0xC0) == 0x80) {
        code = ((c & 0x1Fu) << 6) | (static_cast<unsigned char>(text[i + 1]) & 0x3Fu);
        len = 2;
        if (code < 0x80) return Error(line, "the title is not valid UTF-8");
        if (code > 0xFF) return NotLatin1(line, code);  // U+0100 to U+07FF
      } else if ((c & 0xE0) == 0xE0 || (c & 0xF8) == 0xF0) {
        // Three- and four-byte sequences are all above U+00FF.
        std::size_t n = (c & 0xF0) == 0xE0 ? 3 : 4;
        if ((c & 0xF8) == 0xF8 || i + n > text.size())
          return Error(line, "the title is not valid UTF-8");
        code = c & (n == 3 ? 0x0Fu : 0x07u);
        for (std::size_t k = 1; k < n; ++k) {
          const auto cc = static_cast<unsigned char>(text[i + k]);
          if ((cc & 0xC0) != 0x80) return Error(line, "the title is not valid UTF-8");
          code = (code << 6) | (cc & 0x3Fu);
        }
        return NotLatin1(line, code);
      } else {
        return Error(line, "the title is not valid UTF-8");
      }
    }
    if (code < 0x20 || code == 0x7F) return Error(line, "the title has a control character");
    bytes.push_back(static_cast<char>(code));
    i += len;
  }
  if (bytes.size() > 32767) return Error(line, "the title is longer than 32767 characters");
  d_.Title = bytes;
}

void Parser::Tools(int line, std::string_view value) {
  std::map<int, bool> given;
  for (std::string_view word : Words(value)) {
    const auto eq = word.find('=');
    if (eq == std::string_view::npos) {
      Error(line, "tools: expected name=count, not " + Quoted(word));
      continue;
    }
    const std::string_view name = word.substr(0, eq);
    const auto tool = ToolOfName(name);
    if (!tool) {
      Error(line, "tools: unknown tool " + Quoted(name) +
                      " (climb, block, build, change, jump, slow, bomb, laser)");
      continue;
    }
    if (given[*tool]) Error(line, "tools: " + std::string(name) + " is given twice");
    given[*tool] = true;
    if (const auto n =
            Number(line, "tools: " + std::string(name), word.substr(eq + 1), kCountRange))
      d_.ToolStock[static_cast<std::size_t>(*tool)] = static_cast<int16_t>(*n);
  }
}

void Parser::Slot(int line, std::string_view kind, std::string_view slotText,
                  std::string_view value) {
  const auto slot = Number(line, std::string(kind) + " slot", slotText, kSlotRange);
  if (!slot) return;
  const std::string key = std::string(kind) + " " + std::to_string(*slot);
  if (seen_.count(key))
    return Error(line, key + " is already given on line " + std::to_string(seen_[key]));
  seen_[key] = line;
  const auto words = Words(value);
  bool active = true;
  if (words.size() == 3 && words[2] == "inactive") {
    active = false;
  } else if (words.size() != 2) {
    return Error(line, key + ": expected a column and a row, optionally followed by inactive");
  }
  const auto x = Number(line, key + " column", words[0], kPositionRange);
  const auto y = Number(line, key + " row", words[1], kPositionRange);
  if (!x || !y) return;
  LevelSlot& s = d_.Slots[static_cast<std::size_t>(*slot)];
  const int16_t flag = active ? -1 : 0;
  if (kind == "entrance") {
    s.EntranceActive = flag;
    s.EntranceX = static_cast<int32_t>(*x);
    s.EntranceY = static_cast<int16_t>(*y);
  } else if (kind == "trap") {
    s.TrapActive = flag;
    s.TrapX = static_cast<int32_t>(*x);
    s.TrapY = static_cast<int16_t>(*y);
  } else {
    s.TeleportActive = flag;
    s.TeleportX = static_cast<int32_t>(*x);
    s.TeleportY = static_cast<int16_t>(*y);
  }
  if (active) activeSlots_.push_back({line, key, static_cast<int>(*slot)});
}

void Parser::HeaderLine(int line, std::string_view raw) {
  const auto colon = raw.find(':');
  if (colon == std::string_view::npos)
    return Error(line, "expected \"key: value\" or \"grid:\", not " + Quoted(Trim(raw)));
  const std::string_view key = Trim(raw.substr(0, colon));
  const std::string_view value = Trim(StripComment(raw.substr(colon + 1)));
  const auto keyWords = Words(key);
  if (keyWords.size() == 2 &&
      (keyWords[0] == "entrance" || keyWords[0] == "trap" || keyWords[0] == "teleport"))
    return Slot(line, keyWords[0], keyWords[1], value);

  static const char* const kKeys[] = {"title", "tier",    "number", "characters", "needed",
                                      "time",  "release", "tools",  "view"};
  bool known = false;
  for (const char* k : kKeys) known = known || key == k;
  if (!known) return Error(line, "unknown key " + Quoted(key));
  const std::string k(key);
  if (seen_.count(k))
    return Error(line, k + " is already given on line " + std::to_string(seen_[k]));
  seen_[k] = line;

  if (key == "title") return Title(line, raw, colon + 1);
  if (key == "tools") return Tools(line, value);
  if (key == "tier") {
    if (const auto t = TierOfText(value)) {
      d_.Skill = *t;
    } else {
      Error(line, "tier must be Beginner, Intermediate, Advanced, Expert or 0 to 3, not " +
                      Quoted(value));
    }
    return;
  }
  if (key == "view") {
    const auto words = Words(value);
    if (words.size() != 2) return Error(line, "view: expected a column and a row");
    const auto x = Number(line, "view column", words[0], kViewColumnRange);
    const auto y = Number(line, "view row", words[1], kViewRowRange);
    if (x) d_.StartViewX = static_cast<int32_t>(*x);
    if (y) d_.StartViewY = static_cast<int16_t>(*y);
    return;
  }
  if (key == "number") {
    if (const auto n = Number(line, "number", value, kNumberRange))
      d_.Number = static_cast<int32_t>(*n);
  } else if (key == "characters") {
    if (const auto n = Number(line, "characters", value, kCharactersRange))
      d_.CharactersTotal = static_cast<int32_t>(*n);
  } else if (key == "needed") {
    if (const auto n = Number(line, "needed", value, kCountRange))
      d_.CharactersNeeded = static_cast<int16_t>(*n);
  } else if (key == "time") {
    if (const auto n = Number(line, "time", value, kTimeRange))
      d_.TimeLeft = static_cast<int32_t>(*n);
  } else if (key == "release") {
    if (const auto n = Number(line, "release", value, kCountRange))
      d_.ReleaseInterval = static_cast<int16_t>(*n);
  }
}

void Parser::Grid(int gridLine, const std::vector<std::string_view>& rows) {
  if (rows.empty()) return Error(gridLine, "the grid has no rows");
  if (rows.size() > kMaxHeight)
    return Error(gridLine + kMaxHeight + 1,
                 "the grid has " + std::to_string(rows.size()) + " rows; a level has at most 80");
  const std::size_t width = rows[0].size();
  if (width == 0) return Error(gridLine + 1, "the first grid row is empty");
  if (width > kMaxWidth)
    return Error(gridLine + 1, "the grid row has " + std::to_string(width) +
                                   " squares; a level has at most 120 columns");
  bool good = true;
  for (std::size_t y = 0; y < rows.size(); ++y) {
    const int line = gridLine + 1 + static_cast<int>(y);
    if (rows[y].size() != width) {
      Error(line, "ragged grid: row " + std::to_string(y) + " has " +
                      std::to_string(rows[y].size()) + " squares where the first row has " +
                      std::to_string(width));
      good = false;
      continue;
    }
    for (std::size_t x = 0; x < width; ++x) {
      const char ch = rows[y][x];
      if (KindOfChar(ch)) continue;
      const auto byte = static_cast<unsigned char>(ch);
      Error(line,
            "unknown grid character " +
                (byte >= 0x20 && byte < 0x7F ? std::string{'\'', ch, '\''}
                                             : std::string("(byte ") + std::to_string(byte) + ")") +
                " in column " + std::to_string(x));
      good = false;
      break;  // one report per row is enough
    }
  }
  if (!good) return;
  d_.GridWidth = static_cast<int16_t>(width);
  d_.GridHeight = static_cast<int32_t>(rows.size());
  d_.Squares.assign(width * rows.size(), 0);
  for (std::size_t y = 0; y < rows.size(); ++y)
    for (std::size_t x = 0; x < width; ++x)
      d_.Square(static_cast<int>(x), static_cast<int>(y)) =
          static_cast<int16_t>(*KindOfChar(rows[y][x]));
}

void Parser::CheckAfterGrid() {
  if (d_.GridWidth == 0) return;  // the grid itself was wrong; that is reported
  for (const SlotLine& s : activeSlots_) {
    const LevelSlot& slot = d_.Slots[static_cast<std::size_t>(s.slot)];
    long x = slot.TeleportX, y = slot.TeleportY;
    if (s.what.rfind("entrance", 0) == 0) x = slot.EntranceX, y = slot.EntranceY;
    if (s.what.rfind("trap", 0) == 0) x = slot.TrapX, y = slot.TrapY;
    if (x < 0 || x >= d_.GridWidth || y < 0 || y >= d_.GridHeight)
      Error(s.line, s.what + " at (" + std::to_string(x) + ", " + std::to_string(y) +
                        ") is outside the " + std::to_string(d_.GridWidth) + " by " +
                        std::to_string(d_.GridHeight) + " level");
  }
  if (seen_.count("needed") && d_.CharactersNeeded > d_.CharactersTotal)
    Warn(seen_["needed"], "needed (" + std::to_string(d_.CharactersNeeded) +
                              ") is more than characters (" + std::to_string(d_.CharactersTotal) +
                              "): the level cannot be won");
}

ParsedLevel Parser::Run(std::string_view text) {
  if (text.substr(0, 3) == "\xEF\xBB\xBF") text.remove_prefix(3);  // some editors start with a BOM
  // A NUL byte never belongs in a text; a compiled level does hold them. Say so once instead of
  // echoing its bytes line by line.
  if (const auto nul = text.find('\0'); nul != std::string_view::npos) {
    const auto line = 1 + std::count(text.begin(), text.begin() + static_cast<long>(nul), '\n');
    Error(static_cast<int>(line),
          "the file holds binary bytes, so it is not a level text (a compiled level is turned "
          "into text with \"quorbit-level decompile\")");
    return std::move(out_);
  }
  std::vector<std::string_view> lines;
  for (std::size_t start = 0; start <= text.size();) {
    auto end = text.find('\n', start);
    if (end == std::string_view::npos) end = text.size();
    std::string_view l = text.substr(start, end - start);
    if (!l.empty() && l.back() == '\r') l.remove_suffix(1);
    lines.push_back(l);
    start = end + 1;
  }
  if (!text.empty() && text.back() == '\n') lines.pop_back();

  int gridLine = 0;
  std::size_t i = 0;
  for (; i < lines.size(); ++i) {
    const int line = static_cast<int>(i) + 1;
    const std::string_view t = Trim(lines[i]);
    if (t.empty() || t[0] == '#') continue;
    if (Trim(StripComment(t)) == "grid:") {
      gridLine = line;
      ++i;
      break;
    }
    HeaderLine(line, lines[i]);
  }
  if (gridLine == 0) {
    Error(static_cast<int>(lines.size()), "the file ends without a \"grid:\" line");
  } else {
    std::size_t end = lines.size();
    while (end > i && Trim(lines[end - 1]).empty()) --end;  // blank lines after the grid
    Grid(gridLine, std::vector<std::string_view>(lines.begin() + static_cast<long>(i),
                                                 lines.begin() + static_cast<long>(end)));
  }
  const int lastLine = std::max(gridLine, 1);
  for (const char* k : {"title", "tier", "number", "characters", "needed", "time", "release"})
    if (!seen_.count(k)) Error(lastLine, std::string("the key \"") + k + ":\" is missing");
  CheckAfterGrid();
  // A last guard: anything the game would refuse and the checks above let through.
  if (out_.ok()) {
    const std::string problem = UnsupportedProblem(d_);
    if (!problem.empty()) Error(lastLine, "the game would refuse this level: " + problem);
  }
  return std::move(out_);
}

}  // namespace

bool ParsedLevel::ok() const {
  for (const Diagnostic& d : diagnostics)
    if (!d.warning) return false;
  return true;
}

ParsedLevel ParseLevelText(std::string_view text) {
  return Parser().Run(text);
}

std::string FormatDiagnostic(const std::string& name, const Diagnostic& d) {
  std::string s = name;
  if (d.line > 0) s += ':' + std::to_string(d.line);  // a char: see -Wrestrict in TitleValue
  return s + (d.warning ? ": warning: " : ": error: ") + d.message;
}

}  // namespace qb::leveltext
