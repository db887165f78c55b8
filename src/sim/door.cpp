// The exit door, the out and saved counts, and the end of a level.
#include "sim/door.h"

namespace qb {

LevelEnd GoInDoor(Game& g, int index) {
  PlayEffect(g, Sound::Door);
  if (index == g.Leader) {
    g.Tool5Countdown = 0;
    for (int t = 0; t < kToolCount; ++t) {
      g.ui.Label1Back(t) = kToolsHome;
      g.ui.Label2Back(t) = kToolsHome;
    }
  }
  g.SavedCount = Add16(g.SavedCount, 1, "SavedCount");
  return UpdateInOut(g);
}

LevelEnd UpdateInOut(Game& g) {
  int outNow = 0;
  for (int i = 0; i < g.CharactersTotal; ++i)
    if (g.Chars(i).Out) ++outNow;
  g.ui.Label4Caption(0) = std::to_string(outNow);
  g.ui.Label4Caption(1) = std::to_string(g.SavedCount);
  if (g.SavedCount >= g.CharactersNeeded) {
    g.ui.Label4Back(1) = kWinMark;
    g.ui.Label7Back = kWinMark;
    g.ui.Label7Caption = "Win!";
    g.ui.LevelCmdCaption(3) = kWinCaption;
  }
  if (g.CharactersReleased != g.CharactersTotal || outNow != 0) return LevelEnd::None;

  g.ui.Timer1Enabled = false;
  g.ui.Timer3Enabled = false;
  if (g.Drawing) {
    g.pic.Picture1.Clear();
    g.pic.Backing.Clear();
  }
  if (g.SavedCount < g.CharactersNeeded) {
    if (g.Drawing) g.pic.Picture1.Clear();
    g.SkipTitle = False;
    g.LastEnd = LevelEnd::Lost;
  } else {
    g.LastEnd = LevelEnd::Won;
  }
  return g.LastEnd;
}

}  // namespace qb
