// The shapes and area edits of the editor's drawing tools, on a level's grid.
#include "app/editor/grid_edits.h"

#include <algorithm>
#include <cstdlib>

namespace qb::editor {
namespace {

bool Inside(const LevelData& d, Square s) {
  return s.x >= 0 && s.y >= 0 && s.x < d.GridWidth && s.y < d.GridHeight;
}

}  // namespace

Area Area::Spanning(Square a, Square b) {
  return {std::min(a.x, b.x), std::min(a.y, b.y), std::max(a.x, b.x), std::max(a.y, b.y)};
}

bool Area::Contains(Square s) const {
  return s.x >= left && s.x <= right && s.y >= top && s.y <= bottom;
}

std::vector<Square> LineSquares(Square a, Square b) {
  // Bresenham: one square per step along the longer axis, so the line has no holes.
  std::vector<Square> out;
  const int dx = std::abs(b.x - a.x), dy = -std::abs(b.y - a.y);
  const int sx = a.x < b.x ? 1 : -1, sy = a.y < b.y ? 1 : -1;
  int err = dx + dy;
  for (Square s = a;;) {
    out.push_back(s);
    if (s == b) break;
    const int e2 = 2 * err;
    if (e2 >= dy) {
      err += dy;
      s.x += sx;
    }
    if (e2 <= dx) {
      err += dx;
      s.y += sy;
    }
  }
  return out;
}

std::vector<Square> RectangleSquares(Area area, bool filled) {
  std::vector<Square> out;
  for (int y = area.top; y <= area.bottom; ++y)
    for (int x = area.left; x <= area.right; ++x)
      if (filled || x == area.left || x == area.right || y == area.top || y == area.bottom)
        out.push_back({x, y});
  return out;
}

std::vector<Square> FloodSquares(const LevelData& d, Square start) {
  std::vector<Square> out;
  if (!Inside(d, start)) return out;
  const int16_t kind = d.Square(start.x, start.y);
  std::vector<char> seen(d.Squares.size(), 0);
  std::vector<Square> todo{start};
  seen[static_cast<std::size_t>(start.x + d.GridWidth * start.y)] = 1;
  while (!todo.empty()) {
    const Square s = todo.back();
    todo.pop_back();
    out.push_back(s);
    for (const Square n :
         {Square{s.x + 1, s.y}, Square{s.x - 1, s.y}, Square{s.x, s.y + 1}, Square{s.x, s.y - 1}}) {
      if (!Inside(d, n)) continue;
      const auto i = static_cast<std::size_t>(n.x + d.GridWidth * n.y);
      if (seen[i] || d.Squares[i] != kind) continue;
      seen[i] = 1;
      todo.push_back(n);
    }
  }
  return out;
}

void Paint(LevelData& d, const std::vector<Square>& squares, int16_t kind) {
  for (const Square s : squares)
    if (Inside(d, s)) d.Square(s.x, s.y) = kind;
}

std::optional<Area> PartInside(const LevelData& d, Area area) {
  area.left = std::max(area.left, 0);
  area.top = std::max(area.top, 0);
  area.right = std::min<int>(area.right, d.GridWidth - 1);
  area.bottom = std::min<int>(area.bottom, d.GridHeight - 1);
  if (area.right < area.left || area.bottom < area.top) return std::nullopt;
  return area;
}

Clip CopyArea(const LevelData& d, Area whole) {
  Clip clip;
  const std::optional<Area> inside = PartInside(d, whole);
  if (!inside) return clip;
  const Area area = *inside;
  clip.width = area.Width();
  clip.height = area.Height();
  for (int y = area.top; y <= area.bottom; ++y)
    for (int x = area.left; x <= area.right; ++x) clip.kinds.push_back(d.Square(x, y));
  return clip;
}

void PasteClip(LevelData& d, const Clip& clip, Square at) {
  for (int y = 0; y < clip.height; ++y)
    for (int x = 0; x < clip.width; ++x)
      if (Inside(d, {at.x + x, at.y + y}))
        d.Square(at.x + x, at.y + y) = clip.kinds[static_cast<std::size_t>(x + clip.width * y)];
}

Clip FlippedLeftRight(const Clip& clip) {
  Clip out = clip;
  for (int y = 0; y < clip.height; ++y)
    std::reverse(out.kinds.begin() + y * clip.width, out.kinds.begin() + (y + 1) * clip.width);
  return out;
}

Clip FlippedUpDown(const Clip& clip) {
  Clip out = clip;
  for (int y = 0; y < clip.height; ++y)
    std::copy_n(clip.kinds.begin() + (clip.height - 1 - y) * clip.width, clip.width,
                out.kinds.begin() + y * clip.width);
  return out;
}

void Resize(LevelData& d, int width, int height) {
  LevelData old = d;
  d.GridWidth = static_cast<int16_t>(width);
  d.GridHeight = height;
  d.Squares.assign(static_cast<std::size_t>(width * height), 0);
  for (int x = 0; x < std::min<int>(width, old.GridWidth); ++x)
    for (int y = 0; y < std::min<int>(height, old.GridHeight); ++y)
      d.Square(x, y) = old.Square(x, y);
}

}  // namespace qb::editor
