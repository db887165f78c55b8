// Stepping back through an attempt from copies of the game and the player's acts.
#include "play/step_history.h"

#include <algorithm>

#include "play/cycle.h"
#include "play/player_acts.h"

namespace qb {
namespace {

// The window's own state, which going back in the game must not undo: paused stays paused.
void KeepWindowState(const Game& now, Game& back) {
  Controls& ui = back.ui;
  ui.Timer1Enabled = now.ui.Timer1Enabled;
  ui.Timer1Interval = now.ui.Timer1Interval;
  ui.Timer1Restarts = now.ui.Timer1Restarts;
  ui.Timer3Enabled = now.ui.Timer3Enabled;
  ui.StayPausedForTools = now.ui.StayPausedForTools;
  ui.OptionsChecked = now.ui.OptionsChecked;
  for (int i = 0; i < 2; ++i) {
    ui.LevelCmdChecked(i) = now.ui.LevelCmdChecked(i);
    ui.Label3Back(i) = now.ui.Label3Back(i);
  }
  back.MusicState = now.MusicState;
  back.CurrentTrack = now.CurrentTrack;
}

}  // namespace

void StepHistory::Keep(const Game& g) {
  if (g.attempt.number != attempt_) {
    copies_.clear();
    copies_.reserve(kMaxCopies + 1);  // one block: growing by doubling would overshoot the bound
    attempt_ = g.attempt.number;
    interval_ = kFirstInterval;
  }
  const int cycle = g.attempt.cycles;
  if (cycle % interval_ != 0) return;
  if (!copies_.empty() && copies_.back().attempt.cycles >= cycle) return;
  copies_.push_back(g);
  if (copies_.size() > kMaxCopies) {
    interval_ *= 2;
    std::erase_if(copies_, [&](const Game& c) { return c.attempt.cycles % interval_ != 0; });
  }
}

bool StepHistory::GoBackTo(Game& g, int cycle) {
  if (g.attempt.number != attempt_ || cycle < 0 || cycle >= g.attempt.cycles) return false;
  const std::vector<PlayerAct>& acts = g.attempt.acts;
  const auto kept = static_cast<std::size_t>(
      std::find_if(acts.begin(), acts.end(), [&](const PlayerAct& a) { return a.cycle >= cycle; }) -
      acts.begin());
  // The latest copy at or before the cycle whose acts are all still kept.
  const auto from = std::find_if(copies_.rbegin(), copies_.rend(), [&](const Game& c) {
    return c.attempt.cycles <= cycle && c.attempt.acts.size() <= kept;
  });
  if (from == copies_.rend()) return false;

  Game run = *from;
  run.ui.OptionsChecked(OptSound) = false;  // the cycles run again are not heard again
  std::size_t next = run.attempt.acts.size();
  for (;;) {
    while (next < kept && acts[next].cycle == run.attempt.cycles)
      if (Ended(Apply(run, acts[next++]))) return false;
    if (run.attempt.cycles == cycle) break;
    if (Ended(RunCycle(run))) return false;  // the attempt did not end here before
  }
  KeepWindowState(g, run);
  g = std::move(run);
  std::erase_if(copies_, [&](const Game& c) {
    return c.attempt.cycles > cycle || c.attempt.acts.size() > kept;
  });
  Keep(g);
  return true;
}

std::size_t StepHistory::CopiesBytes() const {
  std::size_t bytes = copies_.capacity() * sizeof(Game);
  for (const Game& c : copies_) {
    bytes += c.attempt.acts.capacity() * sizeof(PlayerAct);
    for (int t = 0; t < kReplaySlots; ++t)
      if (c.ReplayLog(t).capacity() > std::string().capacity()) bytes += c.ReplayLog(t).capacity();
    for (const std::string* s : {&c.LevelFile, &c.LevelTitle, &c.LevelName, &c.ProgramFolder})
      if (s->capacity() > std::string().capacity()) bytes += s->capacity();
  }
  return bytes;
}

}  // namespace qb
