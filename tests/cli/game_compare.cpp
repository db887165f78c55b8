// Lists the parts of two games that differ: state, control model and pictures.
#include "game_compare.h"

namespace qb::test {
namespace {

bool SameView(const ViewPicture& a, const ViewPicture& b) {
  for (int y = 0; y < kViewSize; ++y)
    for (int x = 0; x < kViewSize; ++x)
      if (!(a.At(x, y) == b.At(x, y))) return false;
  return a.DirtyCount() == b.DirtyCount();
}

}  // namespace

std::vector<std::string> GameDifferences(const Game& a, const Game& b) {
  std::vector<std::string> out;
#define QB_SAME(field) \
  if (!(a.field == b.field)) out.push_back(#field)
  // The game state.
  QB_SAME(Grid);
  QB_SAME(GridWidth);
  QB_SAME(GridHeight);
  QB_SAME(SquareColour);
  QB_SAME(Chars);
  QB_SAME(CharactersTotal);
  QB_SAME(CharactersReleased);
  QB_SAME(CharactersNeeded);
  QB_SAME(SavedCount);
  QB_SAME(Leader);
  QB_SAME(CrowdColour);
  QB_SAME(SplashColour);
  QB_SAME(EntranceActive);
  QB_SAME(EntranceX);
  QB_SAME(EntranceY);
  QB_SAME(TrapActive);
  QB_SAME(TrapX);
  QB_SAME(TrapY);
  QB_SAME(TrapSprung);
  QB_SAME(TeleportActive);
  QB_SAME(TeleportX);
  QB_SAME(TeleportY);
  QB_SAME(NextEntrance);
  QB_SAME(ReleaseInterval);
  QB_SAME(ReleaseTimer);
  QB_SAME(ToolStock);
  QB_SAME(Blocking);
  QB_SAME(Building);
  QB_SAME(Bombing);
  QB_SAME(JumpStage);
  QB_SAME(Lasering);
  QB_SAME(LaserHitX);
  QB_SAME(LaserHitY);
  QB_SAME(BombOwner);
  QB_SAME(ClimbArmed);
  QB_SAME(Climbing);
  QB_SAME(Floating);
  QB_SAME(Tool5Countdown);
  QB_SAME(SlowToggle);
  QB_SAME(TimerHalfTick);
  QB_SAME(CurrentSkill);
  QB_SAME(LevelNumber);
  QB_SAME(LevelFile);
  QB_SAME(LevelTitle);
  QB_SAME(LevelName);
  QB_SAME(TimeLeft);
  QB_SAME(HighestLevel);
  QB_SAME(SkillName);
  QB_SAME(SkipTitle);
  QB_SAME(ViewX);
  QB_SAME(ViewY);
  QB_SAME(StartViewX);
  QB_SAME(StartViewY);
  QB_SAME(SettingUp);
  QB_SAME(ReplayLog);
  QB_SAME(ReplayTick);
  QB_SAME(ReplayPlaying);
  QB_SAME(MusicState);
  QB_SAME(TrackNames);
  QB_SAME(CurrentTrack);
  QB_SAME(LastEnd);
  QB_SAME(attempt);
  QB_SAME(lastFinished);
  // The control model of the play window.
  QB_SAME(ui.Label1Back);
  QB_SAME(ui.Label2Back);
  QB_SAME(ui.Label2Caption);
  QB_SAME(ui.Label4Caption);
  QB_SAME(ui.Label4Back);
  QB_SAME(ui.Label6Caption);
  QB_SAME(ui.Label5Caption);
  QB_SAME(ui.Label5Back);
  QB_SAME(ui.Label3Back);
  QB_SAME(ui.Label7Caption);
  QB_SAME(ui.Label7Back);
  QB_SAME(ui.Label8Caption);
  QB_SAME(ui.Label8Visible);
  QB_SAME(ui.Label8Back);
  QB_SAME(ui.LevelCmdCaption);
  QB_SAME(ui.LevelCmdChecked);
  QB_SAME(ui.OptionsChecked);
  QB_SAME(ui.Timer1Enabled);
  QB_SAME(ui.Timer1Interval);
  QB_SAME(ui.Timer1Restarts);
  QB_SAME(ui.Timer3Enabled);
  QB_SAME(ui.Caption);
  QB_SAME(ui.Frame1Visible);
  QB_SAME(ui.HScrollMax);
  QB_SAME(ui.HScrollValue);
  QB_SAME(ui.VScrollMax);
  QB_SAME(ui.VScrollValue);
  QB_SAME(ui.MapWidthTwips);
  QB_SAME(ui.MapHeightTwips);
  // The pictures.
  QB_SAME(pic.Map);
  QB_SAME(pic.Backing);
#undef QB_SAME
  if (!SameView(a.pic.Picture1, b.pic.Picture1)) out.push_back("pic.Picture1");
  // Whole-object comparisons catch a field that the list above does not name yet.
  if (out.empty() && !(static_cast<const GameState&>(a) == static_cast<const GameState&>(b)))
    out.push_back("a game state field not listed here");
  if (out.empty() && !(a.ui == b.ui)) out.push_back("a control field not listed here");
  if (out.empty() && !(a.pic == b.pic)) out.push_back("a picture field not listed here");
  return out;
}

}  // namespace qb::test
