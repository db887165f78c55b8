// Teleports: a four-tick passage to the partner of a pair.
#include "sim/teleport.h"

#include "draw/drawing.h"

namespace qb {

void Teleport(Game& g, int index) {
  CharRecord& c = g.Chars(index);
  const Colour own = index == g.Leader ? QBColor(0) : g.CrowdColour;
  switch (c.Teleporting) {
    case 1:
      PlayEffect(g, Sound::Teleport);
      DrawBlock(g, c.X, c.Y, QBColor(10));
      c.Teleporting = 2;
      break;
    case 2:
      EraseChar(g, index);
      c.Teleporting = 3;
      break;
    case 3: {
      bool found = false;
      for (int j = 0; j < kSlots; ++j) {
        if (g.TeleportActive(j) && c.X == g.TeleportX(j) && c.Y == g.TeleportY(j) && !found) {
          const int p = TeleportPartner(j);
          c.X = To16(g.TeleportX(p), "X");
          c.Y = g.TeleportY(p);
          found = true;
        }
      }
      DrawBlock(g, c.X, c.Y, QBColor(10));
      c.Teleporting = 4;
      break;
    }
    default:
      DrawBlock(g, c.X, c.Y, own);
      c.Teleporting = 0;
      break;
  }
}

}  // namespace qb
