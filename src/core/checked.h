// Range-checked fixed tables and 16-bit arithmetic that faults instead of wrapping.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "core/fault.h"

namespace qb {

// A fixed table indexed from 0 whose every access is range-checked.
template <typename T, int N>
class Table {
 public:
  explicit Table(const char* name) : name_(name) {}

  T& operator()(int i) {
    Check(i);
    return items_[static_cast<std::size_t>(i)];
  }
  const T& operator()(int i) const {
    Check(i);
    return items_[static_cast<std::size_t>(i)];
  }
  static constexpr int Size() { return N; }
  // The first n items, for hot loops whose bound is already known to be within the table.
  const T* First(int n) const {
    Check(n - 1 < 0 ? 0 : n - 1);
    return items_.data();
  }
  void Fill(const T& v) { items_.fill(v); }
  bool operator==(const Table& o) const { return items_ == o.items_; }

 private:
  void Check(int i) const {
    if (i < 0 || i >= N) [[unlikely]]
      Fail(i);
  }
  // Out of line, so that the check itself stays small enough to inline in the hot loops.
  [[noreturn, gnu::cold, gnu::noinline]] void Fail(int i) const {
    throw RangeFault(name_, std::to_string(i));
  }
  const char* name_;
  std::array<T, N> items_{};
};

// The square grid: 120 columns by 80 rows, element (x, y) stored at x + 120 * y.
class GridTable {
 public:
  static constexpr int kColumns = 120;
  static constexpr int kRows = 80;

  int16_t& operator()(int x, int y) {
    Check(x, y);
    return cells_[static_cast<std::size_t>(x + kColumns * y)];
  }
  int16_t operator()(int x, int y) const {
    Check(x, y);
    return cells_[static_cast<std::size_t>(x + kColumns * y)];
  }
  static bool Contains(int x, int y) { return x >= 0 && x < kColumns && y >= 0 && y < kRows; }
  void Fill(int16_t v) { cells_.fill(v); }
  // All squares, row by row, for whole-grid reads such as hashing.
  const int16_t* Cells() const { return cells_.data(); }
  bool operator==(const GridTable& o) const { return cells_ == o.cells_; }

 private:
  static void Check(int x, int y) {
    if (!Contains(x, y)) [[unlikely]]
      Fail(x, y);
  }
  [[noreturn, gnu::cold, gnu::noinline]] static void Fail(int x, int y) {
    throw RangeFault("Grid", std::to_string(x) + ", " + std::to_string(y));
  }
  std::array<int16_t, kColumns * kRows> cells_{};
};

// a + b for a 16-bit field; a result outside 16 bits is a fault.
inline int16_t Add16(int a, int b, const char* what) {
  const long r = static_cast<long>(a) + b;
  if (r < INT16_MIN || r > INT16_MAX) throw OverflowFault(what);
  return static_cast<int16_t>(r);
}

// A whole number assigned to a 16-bit field; out of range is a fault.
inline int16_t To16(long v, const char* what) {
  if (v < INT16_MIN || v > INT16_MAX) throw OverflowFault(what);
  return static_cast<int16_t>(v);
}

// a + b for a 32-bit (variant) counter.
inline int32_t Add32(long long a, long long b, const char* what) {
  const long long r = a + b;
  if (r < INT32_MIN || r > INT32_MAX) throw OverflowFault(what);
  return static_cast<int32_t>(r);
}

}  // namespace qb
