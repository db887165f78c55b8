// What the player sees, as trace lines, read from the game's own pictures.
#include "view_trace.h"

#include <ostream>

namespace qb {

int FaceCode(const ViewCell& cell) {
  if (!cell.face) return 0;
  return (cell.climbing ? 2 : 1) * (cell.dir < 0 ? -1 : 1);
}

ViewTrace::ViewTrace() {
  dots_.fill(kWhite);
}

void ViewTrace::Line(std::ostream& out, long t, const Game& g) {
  out << "{\"t\":" << t << ",\"squares\":[";
  const char* comma = "";
  for (int c = 0; c < kViewSize; ++c)
    for (int r = 0; r < kViewSize; ++r) {
      const ViewCell& cell = g.pic.Picture1.At(c, r);
      const Square now{cell.colour, FaceCode(cell)};
      Square& before = view_[static_cast<std::size_t>(c * kViewSize + r)];
      if (now == before) continue;
      out << comma << "[" << c << "," << r << "," << now.colour << "," << now.face << "]";
      comma = ",";
      before = now;
    }
  out << "],\"dots\":[";
  comma = "";
  // The shown map, Picture2(0); its dotted view frame is kept apart from the dots.
  const MapPicture& map = g.pic.Map;
  for (int x = 0; x < map.Width(); ++x)
    for (int y = 0; y < map.Height(); ++y) {
      const Colour now = map.Dot(x, y);
      Colour& before = dots_[static_cast<std::size_t>(x + MapPicture::kMaxW * y)];
      if (now == before) continue;
      out << comma << "[" << x << "," << y << "," << now << "]";
      comma = ",";
      before = now;
    }
  out << "]}\n";
}

}  // namespace qb
