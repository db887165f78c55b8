// Hand-built binary level files for tests: every field written with the tag a test chooses.
#pragma once

#include <array>
#include <bit>
#include <cstdint>
#include <string>
#include <vector>

namespace qb::test {

// A variant as stored: a type tag and the value's bytes.
struct Var {
  int16_t tag = 0;
  std::vector<uint8_t> value;

  static Var Empty() { return {0, {}}; }
  static Var Integer(int16_t v) { return {2, Le(static_cast<uint16_t>(v), 2)}; }
  static Var Long(int32_t v) { return {3, Le(static_cast<uint32_t>(v), 4)}; }
  static Var Single(float f) { return {4, Le(std::bit_cast<uint32_t>(f), 4)}; }
  static Var Double(double d) { return {5, Le(std::bit_cast<uint64_t>(d), 8)}; }
  static Var String(const std::string& s) {
    Var v{8, Le(static_cast<uint16_t>(s.size()), 2)};
    v.value.insert(v.value.end(), s.begin(), s.end());
    return v;
  }
  static Var Boolean(bool b) { return {11, Le(b ? 0xFFFFu : 0u, 2)}; }

  static std::vector<uint8_t> Le(uint64_t v, int n) {
    std::vector<uint8_t> out;
    for (int i = 0; i < n; ++i) out.push_back(static_cast<uint8_t>(v >> (8 * i)));
    return out;
  }
};

struct SlotBytes {
  Var EntranceActive = Var::Boolean(false);
  Var TrapActive = Var::Boolean(false);
  int16_t TeleportActive = 0;
  Var EntranceX = Var::Integer(0);
  int16_t EntranceY = 0;
  Var TrapX = Var::Integer(0);
  int16_t TrapY = 0;
  Var TeleportX = Var::Integer(0);
  int16_t TeleportY = 0;
};

// A small valid level (4 by 3, an entrance at (0, 1), a door at (3, 1)) unless a test
// changes a field.
struct LevelBytes {
  std::string Title = "Hand Made";
  Var Skill = Var::Integer(1);
  Var Number = Var::Integer(7);
  Var CharactersTotal = Var::Integer(5);
  int16_t CharactersNeeded = 3;
  Var TimeLeft = Var::Integer(200);
  std::array<int16_t, 8> ToolStock{0, 0, 2, 0, 1, 0, 0, 0};
  std::array<SlotBytes, 6> Slots{{{.EntranceActive = Var::Boolean(true), .EntranceY = 1}}};
  Var StartViewX = Var::Integer(0);
  int16_t StartViewY = 0;
  int16_t GridWidth = 4;
  Var GridHeight = Var::Integer(3);
  int16_t ReleaseInterval = 2;
  // Column-major kinds, as the file stores them: a floor on row 2 and the door at (3, 1).
  std::vector<int16_t> Columns{0, 0, 2, 0, 0, 2, 0, 0, 2, 0, 16, 2};

  std::vector<uint8_t> Bytes() const {
    std::vector<uint8_t> out;
    const auto i16 = [&](int16_t v) {
      const auto b = Var::Le(static_cast<uint16_t>(v), 2);
      out.insert(out.end(), b.begin(), b.end());
    };
    const auto var = [&](const Var& v) {
      i16(v.tag);
      out.insert(out.end(), v.value.begin(), v.value.end());
    };
    i16(static_cast<int16_t>(Title.size()));
    out.insert(out.end(), Title.begin(), Title.end());
    var(Skill);
    var(Number);
    var(CharactersTotal);
    i16(CharactersNeeded);
    var(TimeLeft);
    for (int16_t s : ToolStock) i16(s);
    for (const SlotBytes& s : Slots) {
      var(s.EntranceActive);
      var(s.TrapActive);
      i16(s.TeleportActive);
      var(s.EntranceX);
      i16(s.EntranceY);
      var(s.TrapX);
      i16(s.TrapY);
      var(s.TeleportX);
      i16(s.TeleportY);
    }
    var(StartViewX);
    i16(StartViewY);
    i16(GridWidth);
    var(GridHeight);
    i16(ReleaseInterval);
    for (int16_t k : Columns) i16(k);
    return out;
  }

  // Where the grid starts in Bytes(), to cut a file inside it.
  std::size_t GridOffset() const { return Bytes().size() - 2 * Columns.size(); }
};

}  // namespace qb::test
