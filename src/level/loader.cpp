// Loading a level into the game and setting up the play window for it.
#include "level/loader.h"

#include "draw/drawing.h"
#include "level/music.h"
#include "level/screens.h"

namespace qb {

void ApplyLevel(Game& g, const LevelData& d) {
  g.LevelTitle = d.Title;
  g.LevelName = d.Title;
  g.CurrentSkill = d.Skill;
  g.LevelNumber = d.Number;
  g.CharactersTotal = d.CharactersTotal;
  g.CharactersNeeded = d.CharactersNeeded;
  g.TimeLeft = d.TimeLeft;
  for (int t = 0; t < kToolCount; ++t) g.ToolStock(t) = d.ToolStock[static_cast<std::size_t>(t)];
  for (int j = 0; j < kSlots; ++j) {
    const LevelSlot& s = d.Slots[static_cast<std::size_t>(j)];
    g.EntranceActive(j) = To16(s.EntranceActive == 0 ? 0 : -1, "EntranceActive");
    g.TrapActive(j) = To16(s.TrapActive == 0 ? 0 : -1, "TrapActive");
    g.TeleportActive(j) = s.TeleportActive;
    g.EntranceX(j) = s.EntranceX;
    g.EntranceY(j) = s.EntranceY;
    g.TrapX(j) = s.TrapX;
    g.TrapY(j) = s.TrapY;
    g.TeleportX(j) = s.TeleportX;
    g.TeleportY(j) = s.TeleportY;
  }
  g.StartViewX = d.StartViewX;
  g.StartViewY = d.StartViewY;
  g.GridWidth = d.GridWidth;
  g.GridHeight = d.GridHeight;
  g.ReleaseInterval = d.ReleaseInterval;
  for (int x = 0; x < d.GridWidth; ++x)
    for (int y = 0; y < d.GridHeight; ++y) {
      const int16_t k = d.Square(x, y);
      g.Grid(x, y) = (k == Marker1 || k == Marker12) ? int16_t{Empty} : k;
    }
}

LoadResult OpenLevel(Game& g, const std::string& fileName) {
  const LoadOutcome outcome = LoadLevel(g, fileName);
  if (!outcome.detail.empty()) g.host->Note(outcome.detail);
  if (!outcome.Loaded()) g.host->ShowMessage(outcome.message, "Quorbit");
  return outcome.result;
}

LoadOutcome LoadLevel(Game& g, const std::string& fileName) {
  const int32_t keptSkill = g.CurrentSkill;
  const FileRead file = g.host->ReadFile(fileName);
  const LevelRead read = ReadLevel(file.bytes ? *file.bytes : std::vector<uint8_t>{});
  if (read.status == ReadStatus::Unsupported)
    return {LoadResult::Unsupported,
            "The level file " + fileName + " cannot be played: " + read.problem + ".", ""};
  if (read.status == ReadStatus::Missing) {
    g.LevelTitle = read.data.Title;
    g.LevelName = read.data.Title;
    g.LevelNumber = read.data.Number;
    g.CurrentSkill = keptSkill;
    return {LoadResult::Missing, "This level does not exist!",
            "no level in " + fileName + ": " + (file.bytes ? read.problem : file.error)};
  }
  ApplyLevel(g, read.data);
  g.SettingUp = True;
  g.Leader = 0;
  SetUpLevel(g);
  g.ui.Frame1Visible = true;
  NextTrack(g);
  if (g.ui.Option(OptMusic) && g.MusicState == "Stopped") PlayTrack(g, g.CurrentTrack);
  g.ui.Label8Visible = false;
  if (!g.SkipTitle) ShowTitleScreen(g);
  if (g.ui.Option(OptReplay) && g.ReplayLog(0) != "E") {
    g.ui.Label8Visible = true;
    g.ReplayPlaying = True;
  }
  g.ReplayTick = 0;
  ++g.attempt.number;
  g.attempt.cycles = 0;
  g.attempt.acts.clear();
  g.ui.Timer1Enabled = true;
  ++g.ui.Timer1Restarts;
  g.SettingUp = False;
  return {};
}

void ResetLevelState(Game& g) {
  for (int i = 0; i < kMaxChars; ++i) {
    CharRecord& c = g.Chars(i);
    c.Dir = 1;
    c.FallCount = 0;
    c.Out = False;
    c.X = To16(g.EntranceX(0), "X");
    c.Y = g.EntranceY(0);
    c.CrumblePending = 0;
    c.Splatted = c.Splashed = c.Shocked = c.Trapped = c.Teleporting = 0;
  }
  g.Blocking = g.Building = g.Bombing = g.JumpStage = g.Lasering = 0;
  g.TrapSprung.Fill(False);
  g.ClimbArmed = g.Climbing = g.Floating = False;
  g.CharactersReleased = 0;
  g.ReleaseTimer = 0;
  g.SavedCount = 0;
  g.NextEntrance = -1;
}

namespace {

// The overview map of the whole level, without the view's frame.
void DrawOverview(Game& g) {
  g.pic.Map.Resize(g.GridWidth, g.GridHeight);
  g.pic.Backing.Resize(g.GridWidth, g.GridHeight);
  g.pic.Map.Clear();
  g.pic.Backing.Clear();
  for (int x = 0; x < g.GridWidth; ++x)
    for (int y = 0; y < g.GridHeight; ++y) {
      const int k = g.Grid(x, y);
      if (k != Empty) g.pic.Backing.SetDot(x, y, g.SquareColour(k));
    }
  const int version = g.pic.Map.version;
  g.pic.Map = g.pic.Backing;
  g.pic.Map.frameShown = false;
  g.pic.Map.version = version + 1;
}

}  // namespace

void SetUpLevel(Game& g) {
  g.SettingUp = True;
  g.SlowToggle = False;
  ResetLevelState(g);
  g.ui.Caption =
      "Quorbit 2 - " + g.SkillName(g.CurrentSkill) + ", Level " + std::to_string(g.LevelNumber);

  g.ui.MapWidthTwips = g.GridWidth / 120.0 * 3135;
  g.ui.MapHeightTwips = g.GridHeight / 80.0 * 1935;
  if (g.Drawing) DrawOverview(g);

  for (int t = 0; t < kToolCount; ++t) {
    g.ui.Label1Back(t) = kWhite;
    g.ui.Label2Back(t) = kWhite;
    g.ui.Label2Caption(t) = g.ToolStock(t) > 0 ? std::to_string(g.ToolStock(t)) : "";
  }
  g.ui.Label5Caption = "\nTime Left\n" + std::to_string(g.TimeLeft);
  g.ui.Timer1Interval = 350;
  g.ui.LevelCmdChecked(0) = false;
  g.ui.LevelCmdChecked(1) = false;
  g.ui.Label3Back(0) = kWhite;
  g.ui.Label3Back(1) = kWhite;
  // The "Win!" marking of the previous level goes with its caption.
  g.ui.Label7Caption = "Restart";
  g.ui.Label7Back = kSystemWindow;
  g.ui.Label4Back(1) = kSystemWindow;
  g.ui.LevelCmdCaption(3) = kRestartCaption;
  g.ui.Label6Caption(0) = "of " + std::to_string(g.CharactersTotal);
  g.ui.Label6Caption(2) = "of " + std::to_string(g.CharactersNeeded);
  // Chars, not one-letter strings: g++ 12 at -O3 takes those for overlapping copies (-Wrestrict).
  g.ui.Label4Caption(0) = '0';
  g.ui.Label4Caption(1) = '0';

  g.ViewX = g.StartViewX;
  g.ViewY = g.StartViewY;
  DrawView(g);
  DrawViewFrame(g, true);
}

}  // namespace qb
