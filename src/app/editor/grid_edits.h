// The shapes and area edits of the editor's drawing tools, on a level's grid.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "core/level_file.h"

namespace qb::editor {

struct Square {
  int x = 0;
  int y = 0;
  bool operator==(const Square&) const = default;
};

// A rectangle of squares given by two opposite corners, in any order.
struct Area {
  int left = 0, top = 0, right = 0, bottom = 0;  // inclusive
  static Area Spanning(Square a, Square b);
  int Width() const { return right - left + 1; }
  int Height() const { return bottom - top + 1; }
  bool Contains(Square s) const;
};

// The part of `area` that lies inside the level; nothing when none does.
std::optional<Area> PartInside(const LevelData& d, Area area);

// The squares of a straight line from `a` to `b`, both ends included, without gaps.
std::vector<Square> LineSquares(Square a, Square b);

// The squares of a rectangle: all of it, or only its border.
std::vector<Square> RectangleSquares(Area area, bool filled);

// The squares of the same kind as `start` joined to it side by side.
std::vector<Square> FloodSquares(const LevelData& d, Square start);

// Sets the kind of every listed square that lies inside the level.
void Paint(LevelData& d, const std::vector<Square>& squares, int16_t kind);

// A block of square kinds cut or copied from a level.
struct Clip {
  int width = 0, height = 0;
  std::vector<int16_t> kinds;  // (x, y) at x + width * y
  bool Empty() const { return kinds.empty(); }
};

// The part of `area` inside the level.
Clip CopyArea(const LevelData& d, Area area);
// Puts `clip` with its top left at `at`; what falls outside the level is left out.
void PasteClip(LevelData& d, const Clip& clip, Square at);
Clip FlippedLeftRight(const Clip& clip);
Clip FlippedUpDown(const Clip& clip);

// The level at a new size: squares keep their place, new ones are empty, the rest are cut off.
void Resize(LevelData& d, int width, int height);

}  // namespace qb::editor
