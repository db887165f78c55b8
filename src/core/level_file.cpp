// Reading and writing the binary level file.
#include "core/level_file.h"

#include <charconv>
#include <cmath>
#include <cstring>
#include <limits>
#include <optional>

#include "core/quoted.h"

namespace qb {
namespace {

enum Tag : int16_t {
  TEmpty = 0,
  TNull = 1,
  TInteger = 2,
  TLong = 3,
  TSingle = 4,
  TDouble = 5,
  TString = 8,
  TBoolean = 11
};

class Reader {
 public:
  explicit Reader(const std::vector<uint8_t>& b) : b_(b) {}

  bool AtEnd() const { return pos_ >= b_.size(); }

  // An Integer; past the end it reads 0.
  int16_t Integer(const char* field) {
    if (pos_ + 2 > b_.size()) {
      NoteShort(field);
      pos_ = b_.size();
      return 0;
    }
    const int16_t v = static_cast<int16_t>(b_[pos_] | (b_[pos_ + 1] << 8));
    pos_ += 2;
    return v;
  }

  std::string Text(int length, const char* field) {
    std::string s(static_cast<std::size_t>(length), ' ');
    for (int i = 0; i < length; ++i) {
      if (pos_ >= b_.size()) {
        NoteShort(field);
        break;
      }
      s[static_cast<std::size_t>(i)] = static_cast<char>(b_[pos_++]);
    }
    return s;
  }

  // A variant used as a whole number; past the end it reads Empty (0).
  int32_t Variant(const char* field) {
    if (pos_ + 2 > b_.size()) {
      NoteShort(field);
      pos_ = b_.size();
      return 0;
    }
    const int16_t tag = Integer(field);
    switch (tag) {
      case TEmpty:
      case TNull:
        return 0;
      case TInteger:
      case TBoolean:
        return Integer(field);
      case TLong: {
        uint32_t u = 0;
        if (!Bytes(&u, 4, field)) return 0;
        return static_cast<int32_t>(u);
      }
      case TSingle: {
        uint32_t u = 0;
        if (!Bytes(&u, 4, field)) return 0;
        float f;
        std::memcpy(&f, &u, 4);
        return Whole(f, field);
      }
      case TDouble: {
        uint64_t u = 0;
        if (!Bytes(&u, 8, field)) return 0;
        double d;
        std::memcpy(&d, &u, 8);
        return Whole(d, field);
      }
      case TString: {
        const int16_t len = Integer(field);
        if (len < 0) return Fail(std::string(field) + ": string of negative length");
        const std::string s = Text(len, field);
        return FromString(s, field);
      }
      default:
        return Fail(std::string(field) + ": variant tag " + std::to_string(tag) +
                    " is not one the game reads");
    }
  }

  const std::string& problem() const { return problem_; }
  const std::string& shortAt() const { return short_; }

 private:
  bool Bytes(void* out, std::size_t n, const char* field) {
    if (pos_ + n > b_.size()) {
      NoteShort(field);
      pos_ = b_.size();
      return false;
    }
    uint64_t v = 0;
    for (std::size_t i = 0; i < n; ++i) v |= static_cast<uint64_t>(b_[pos_ + i]) << (8 * i);
    pos_ += n;
    std::memcpy(out, &v, n);
    return true;
  }

  int32_t Whole(double d, const char* field) {
    if (!std::isfinite(d)) return Fail(std::string(field) + ": not a finite number");
    const double r = std::nearbyint(d);  // the default rounding mode rounds half to even
    if (r < std::numeric_limits<int32_t>::min() || r > std::numeric_limits<int32_t>::max())
      return Fail(std::string(field) + ": number out of range");
    return static_cast<int32_t>(r);
  }

  int32_t FromString(const std::string& s, const char* field) {
    std::size_t a = 0, e = s.size();
    while (a < e && s[a] == ' ') ++a;
    while (e > a && s[e - 1] == ' ') --e;
    const std::string t = s.substr(a, e - a);
    if (t.empty()) return Fail(std::string(field) + ": the text " + Quoted(s) + " is not a number");
    // from_chars reads the same whatever the locale (the window sets the system's locale).
    double d = 0;
    const auto [end, error] = std::from_chars(t.data(), t.data() + t.size(), d);
    if (error != std::errc() || end != t.data() + t.size())
      return Fail(std::string(field) + ": the text " + Quoted(s) + " is not a number");
    return Whole(d, field);
  }

  int32_t Fail(const std::string& why) {
    if (problem_.empty()) problem_ = why;
    return 0;
  }
  void NoteShort(const char* field) {
    if (short_.empty()) short_ = field;
  }

  const std::vector<uint8_t>& b_;
  std::size_t pos_ = 0;
  std::string problem_;
  std::string short_;
};

bool InArea(const LevelData& d, long x, long y) {
  return x >= 0 && x < d.GridWidth && y >= 0 && y < d.GridHeight;
}

}  // namespace

LevelRead ReadLevel(const std::vector<uint8_t>& bytes) {
  LevelRead out;
  LevelData& d = out.data;
  Reader r(bytes);
  const int16_t titleLength = r.Integer("title length");
  if (titleLength < 0) {
    out.status = ReadStatus::Unsupported;
    out.problem = "title length is negative (" + std::to_string(titleLength) + ")";
    return out;
  }
  d.Title = r.Text(titleLength, "title");
  d.Skill = r.Variant("tier");
  d.Number = r.Variant("level number");
  if (!r.problem().empty()) {
    out.status = ReadStatus::Unsupported;
    out.problem = r.problem();
    return out;
  }
  if (d.Number == 0) {
    out.status = ReadStatus::Missing;
    out.shortAt = r.shortAt();
    out.problem = bytes.empty()         ? "the file is empty"
                  : r.shortAt().empty() ? "its level number is 0"
                                        : "the file ends in the " + r.shortAt();
    return out;
  }
  d.CharactersTotal = r.Variant("character count");
  d.CharactersNeeded = r.Integer("needed count");
  d.TimeLeft = r.Variant("time");
  for (auto& s : d.ToolStock) s = r.Integer("tool stock");
  for (auto& s : d.Slots) {
    s.EntranceActive = r.Variant("entrance flag");
    s.TrapActive = r.Variant("trap flag");
    s.TeleportActive = r.Integer("teleport flag");
    s.EntranceX = r.Variant("entrance column");
    s.EntranceY = r.Integer("entrance row");
    s.TrapX = r.Variant("trap column");
    s.TrapY = r.Integer("trap row");
    s.TeleportX = r.Variant("teleport column");
    s.TeleportY = r.Integer("teleport row");
  }
  d.StartViewX = r.Variant("start view column");
  d.StartViewY = r.Integer("start view row");
  d.GridWidth = r.Integer("grid width");
  d.GridHeight = r.Variant("grid height");
  d.ReleaseInterval = r.Integer("release interval");
  if (r.problem().empty() && d.GridWidth >= 1 && d.GridWidth <= 120 && d.GridHeight >= 1 &&
      d.GridHeight <= 80) {
    d.Squares.assign(static_cast<std::size_t>(d.GridWidth * d.GridHeight), 0);
    for (int x = 0; x < d.GridWidth; ++x)
      for (int y = 0; y < d.GridHeight; ++y) d.Square(x, y) = r.Integer("grid");
  }
  out.shortAt = r.shortAt();
  out.problem = r.problem();
  // Without a grid the fields read as 0 past the end would be blamed instead of the short file.
  if (out.problem.empty() && !out.shortAt.empty() && d.Squares.empty())
    out.problem = "the file ends early, after " + std::to_string(bytes.size()) + " bytes, in the " +
                  out.shortAt + ", before the grid";
  if (out.problem.empty()) out.problem = UnsupportedProblem(d);
  if (!out.problem.empty()) out.status = ReadStatus::Unsupported;
  return out;
}

std::string UnsupportedProblem(const LevelData& d) {
  if (d.Skill < 0 || d.Skill > 3) return "tier " + std::to_string(d.Skill) + " is not 0 to 3";
  if (d.GridWidth < 1 || d.GridWidth > 120)
    return "grid width " + std::to_string(d.GridWidth) + " is not 1 to 120";
  if (d.GridHeight < 1 || d.GridHeight > 80)
    return "grid height " + std::to_string(d.GridHeight) + " is not 1 to 80";
  if (d.CharactersTotal < 0 || d.CharactersTotal > 100)
    return "character count " + std::to_string(d.CharactersTotal) + " is not 0 to 100";
  for (int x = 0; x < d.GridWidth; ++x)
    for (int y = 0; y < d.GridHeight; ++y) {
      const int k = d.Square(x, y);
      if (k < 0 || k > 17)
        return "square (" + std::to_string(x) + ", " + std::to_string(y) + ") has kind " +
               std::to_string(k) + ", not 0 to 17";
    }
  for (int j = 0; j < 6; ++j) {
    const LevelSlot& s = d.Slots[static_cast<std::size_t>(j)];
    const std::string n = std::to_string(j);
    for (int32_t column : {s.EntranceX, s.TrapX, s.TeleportX})
      if (column < INT16_MIN || column > INT16_MAX)
        return "slot " + n + " holds the column " + std::to_string(column) +
               ", which does not fit a 16-bit position";
    if (s.EntranceActive != 0 && !InArea(d, s.EntranceX, s.EntranceY))
      return "entrance " + n + " at (" + std::to_string(s.EntranceX) + ", " +
             std::to_string(s.EntranceY) + ") is outside the level";
    if (s.TrapActive != 0 && !InArea(d, s.TrapX, s.TrapY))
      return "trap " + n + " at (" + std::to_string(s.TrapX) + ", " + std::to_string(s.TrapY) +
             ") is outside the level";
    if (s.TeleportActive != 0 && !InArea(d, s.TeleportX, s.TeleportY))
      return "teleport " + n + " at (" + std::to_string(s.TeleportX) + ", " +
             std::to_string(s.TeleportY) + ") is outside the level";
  }
  if (d.StartViewX < 0 || d.StartViewX > 80 || d.StartViewY < 0 || d.StartViewY > 40)
    return "start view (" + std::to_string(d.StartViewX) + ", " + std::to_string(d.StartViewY) +
           ") would show squares outside the 120 by 80 grid";
  return {};
}

namespace {

class Writer {
 public:
  void Integer(int16_t v) {
    out.push_back(static_cast<uint8_t>(v & 0xFF));
    out.push_back(static_cast<uint8_t>((v >> 8) & 0xFF));
  }
  void Number(int32_t v) {
    if (v >= INT16_MIN && v <= INT16_MAX) {
      Integer(TInteger);
      Integer(static_cast<int16_t>(v));
    } else {
      Integer(TLong);
      const auto u = static_cast<uint32_t>(v);
      for (int i = 0; i < 4; ++i) out.push_back(static_cast<uint8_t>(u >> (8 * i)));
    }
  }
  void Flag(int32_t v) {
    if (v == 0 || v == -1) {
      Integer(TBoolean);
      Integer(static_cast<int16_t>(v));
    } else {
      Number(v);
    }
  }
  std::vector<uint8_t> out;
};

}  // namespace

std::vector<uint8_t> WriteLevel(const LevelData& d) {
  Writer w;
  w.Integer(static_cast<int16_t>(d.Title.size()));
  for (char c : d.Title) w.out.push_back(static_cast<uint8_t>(c));
  w.Number(d.Skill);
  w.Number(d.Number);
  w.Number(d.CharactersTotal);
  w.Integer(d.CharactersNeeded);
  w.Number(d.TimeLeft);
  for (int16_t s : d.ToolStock) w.Integer(s);
  for (const LevelSlot& s : d.Slots) {
    w.Flag(s.EntranceActive);
    w.Flag(s.TrapActive);
    w.Integer(s.TeleportActive);
    w.Number(s.EntranceX);
    w.Integer(s.EntranceY);
    w.Number(s.TrapX);
    w.Integer(s.TrapY);
    w.Number(s.TeleportX);
    w.Integer(s.TeleportY);
  }
  w.Number(d.StartViewX);
  w.Integer(d.StartViewY);
  w.Integer(d.GridWidth);
  w.Number(d.GridHeight);
  w.Integer(d.ReleaseInterval);
  for (int x = 0; x < d.GridWidth; ++x)
    for (int y = 0; y < d.GridHeight; ++y) w.Integer(d.Square(x, y));
  return w.out;
}

}  // namespace qb
