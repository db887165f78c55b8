// Drawing the play view, the overview map and the characters into the picture model.
#include "draw/drawing.h"

namespace qb {

Colour CharColour(const Game& g, int index) {
  const CharRecord& c = g.Chars(index);
  Colour colour = g.CrowdColour;
  if (index == g.Leader) colour = QBColor(0);
  if (index == g.Leader && g.Tool5Countdown >= 1) colour = QBColor(7);
  if (c.Teleporting > 0) colour = QBColor(14);
  if (c.Splashed > 0) colour = g.SplashColour(index);
  return colour;
}

void DrawView(Game& g) {
  if (g.Drawing) {
    g.pic.Picture1.Clear();
    for (int x = g.ViewX; x <= g.ViewX + kViewSize - 1; ++x)
      for (int y = g.ViewY; y <= g.ViewY + kViewSize - 1; ++y) {
        const int k = g.Grid(x, y);
        if (k != Empty) g.pic.Picture1.Fill(x - g.ViewX, y - g.ViewY, g.SquareColour(k));
      }
  }
  g.ui.HScrollMax = g.GridWidth - kViewSize;
  g.ui.VScrollMax = g.GridHeight - kViewSize;
  // Setting a scroll bar's value runs its change handler when the value changes.
  if (g.ui.HScrollValue != g.ViewX) {
    g.ui.HScrollValue = g.ViewX;
    if (!g.SettingUp) HScroll1_Change(g, g.ui.HScrollValue);
  }
  if (g.ui.VScrollValue != g.ViewY) {
    g.ui.VScrollValue = g.ViewY;
    if (!g.SettingUp) VScroll1_Change(g, g.ui.VScrollValue);
  }
  for (int i = g.CharactersTotal - 1; i >= 0; --i)
    if (g.Chars(i).Out && i != g.Leader) DrawChar(g, i);
  if (g.Chars(g.Leader).Out) DrawChar(g, g.Leader);
}

void DrawViewFrame(Game& g, bool show) {
  if (!g.Drawing) return;
  MapPicture& m = g.pic.Map;
  if (!show) {
    // The white box whitens the dots under the frame line.
    for (int x = g.ViewX; x <= g.ViewX + kViewSize; ++x) {
      m.SetDot(x, g.ViewY, kWhite);
      m.SetDot(x, g.ViewY + kViewSize, kWhite);
    }
    for (int y = g.ViewY; y <= g.ViewY + kViewSize; ++y) {
      m.SetDot(g.ViewX, y, kWhite);
      m.SetDot(g.ViewX + kViewSize, y, kWhite);
    }
  }
  m.frameShown = show;
  m.frameX = g.ViewX;
  m.frameY = g.ViewY;
  ++m.version;
}

void DrawSquare(Game& g, int x, int y, int kind) {
  if (!GridTable::Contains(x, y)) return;
  const Colour colour = g.SquareColour(kind);
  g.Grid(x, y) = static_cast<int16_t>(kind);
  if (!g.Drawing) return;
  g.pic.Backing.SetDot(x, y, colour);
  g.pic.Map.SetDot(x, y, colour);
  if (kind == Empty) {
    for (int i = g.CharactersTotal - 1; i >= 0; --i) {
      const CharRecord& c = g.Chars(i);
      if (c.X == x && c.Y == y && c.Out) {
        DrawChar(g, i);
        return;
      }
    }
  }
  g.pic.Picture1.Fill(x - g.ViewX, y - g.ViewY, colour);
}

void DrawBlock(Game& g, int x, int y, Colour colour) {
  if (!g.Drawing) return;
  if (colour != QBColor(14)) {
    for (int i = g.CharactersTotal - 1; i >= 0; --i) {
      const CharRecord& c = g.Chars(i);
      if (c.X == x && c.Y == y && c.Out && c.Teleporting == 0) {
        DrawChar(g, i);
        return;
      }
    }
  }
  g.pic.Picture1.Fill(x - g.ViewX, y - g.ViewY, colour);
}

void DrawChar(Game& g, int index) {
  if (!g.Drawing) return;
  DrawCharIn(g, index, CharColour(g, index));
}

void DrawCharIn(Game& g, int index, Colour colour) {
  if (!g.Drawing) return;
  const CharRecord& c = g.Chars(index);
  g.pic.Map.SetDot(c.X, c.Y, colour);
  const int vx = c.X - g.ViewX, vy = c.Y - g.ViewY;
  if (vx >= 0 && vx < kViewSize && vy >= 0 && vy < kViewSize) {
    const bool climbing = index == g.Leader && g.ClimbArmed && g.Climbing;
    g.pic.Picture1.FillFace(vx, vy, colour, c.Dir, climbing);
  }
}

void EraseChar(Game& g, int index) {
  if (!g.Drawing) return;
  const CharRecord& c = g.Chars(index);
  const Colour background = g.SquareColour(g.Grid(c.X, c.Y));
  // While a bomb is primed the leader carrying it is not drawn back in.
  const int skipLeader = (g.Bombing > 0 && g.LaserHitX == 0) ? g.Leader : -1;
  int other = -1;
  const CharRecord* all = g.Chars.First(g.CharactersTotal);
  for (int j = 0; j < g.CharactersTotal; ++j) {
    const CharRecord& o = all[j];
    const bool here = o.X == c.X && o.Y == c.Y && o.Out != 0 && j != index && j != skipLeader;
    other = here ? j : other;
  }
  if (other >= 0) {
    DrawChar(g, other);
    return;
  }
  g.pic.Picture1.Fill(c.X - g.ViewX, c.Y - g.ViewY, background);
  g.pic.Map.SetDot(c.X, c.Y, background);
}

void Picture1_Paint(Game& g) {
  if (g.ui.Option(OptFastScrolling)) DrawView(g);
}

void RepaintSquare(Game& g, int x, int y) {
  if (!GridTable::Contains(x, y)) return;
  DrawBlock(g, x, y, g.SquareColour(g.Grid(x, y)));
}

void PaintIfInGrid(Game& g, int x, int y, Colour colour) {
  if (!GridTable::Contains(x, y)) return;
  DrawBlock(g, x, y, colour);
}

namespace {
void AfterScroll(Game& g) {
  if (g.Drawing)
    g.pic.Map = [&] {
      MapPicture copy = g.pic.Backing;  // the clean overview, without the old frame
      copy.version = g.pic.Map.version + 1;
      return copy;
    }();
  DrawViewFrame(g, true);
  DrawView(g);
}
}  // namespace

void HScroll1_Change(Game& g, int value) {
  if (g.SettingUp) return;
  DrawViewFrame(g, false);
  g.ui.HScrollValue = value;
  g.ViewX = value;
  AfterScroll(g);
}

void VScroll1_Change(Game& g, int value) {
  if (g.SettingUp) return;
  DrawViewFrame(g, false);
  g.ui.VScrollValue = value;
  g.ViewY = To16(value, "ViewY");
  AfterScroll(g);
}

}  // namespace qb
