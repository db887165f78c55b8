// What the player sees, as trace lines: the squares of the play view and the dots of the
// overview map that changed since the previous line.
#pragma once

#include <array>
#include <iosfwd>

#include "core/game.h"

namespace qb {

// The face drawn on a view square: 0 none, 1 or -1 a character looking right or left, 2 or -2
// the leader's climbing pose turned right or left.
int FaceCode(const ViewCell& cell);

class ViewTrace {
 public:
  ViewTrace();
  // Writes the line of cycle t (-1 for the picture the level's set-up left), listing what
  // differs from the previous line (at first from a white view and a white map).
  void Line(std::ostream& out, long t, const Game& g);

 private:
  struct Square {
    Colour colour = kWhite;
    int face = 0;
    bool operator==(const Square&) const = default;
  };
  std::array<Square, kViewSize * kViewSize> view_{};
  std::array<Colour, MapPicture::kMaxW * MapPicture::kMaxH> dots_{};
};

}  // namespace qb
