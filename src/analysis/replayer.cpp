// Plays variations of one solution quickly, from copies of the game kept along the way.
#include "analysis/replayer.h"

#include <algorithm>

namespace qb::analysis {

namespace {

constexpr int kMaxRun = 100000;

void MarkVisits(const Game& g, std::vector<bool>& visited) {
  const CharRecord* chars = g.Chars.First(g.CharactersTotal);
  for (int i = 0; i < g.CharactersTotal; ++i)
    if (chars[i].Out && GridTable::Contains(chars[i].X, chars[i].Y))
      visited[static_cast<std::size_t>(chars[i].X + GridTable::kColumns * chars[i].Y)] = true;
}

}  // namespace

Outcome RunToEnd(Game& g, int maxCycles) {
  Outcome o;
  while (o.cycles < maxCycles) {
    o.end = PlayCycle(g);
    ++o.cycles;
    if (Ended(o.end) || !CanStillWin(g)) break;
  }
  o.saved = g.SavedCount;
  return o;
}

int FirstDifference(const Presses& a, const Presses& b) {
  std::size_t i = 0;
  while (i < a.size() && i < b.size() && a[i] == b[i]) ++i;
  int at = kLastReplayTick + 1;
  if (i < a.size()) at = std::min(at, a[i].cycle);
  if (i < b.size()) at = std::min(at, b[i].cycle);
  return at;
}

Replayer::Replayer(const Game& start, Presses base, int copies) : base_(std::move(base)) {
  SortByCycle(base_);
  Game first = start;
  Schedule(first, base_);
  Game probe = first;
  const int length = std::max(1, RunToEnd(probe, kMaxRun).cycles);
  stride_ = std::max(1, (length + copies - 1) / copies);

  visited_.assign(GridTable::kColumns * GridTable::kRows, false);
  Game g = first;
  std::size_t nextPress = 0;
  while (true) {
    if (baseOutcome_.cycles % stride_ == 0) copies_.push_back(std::make_unique<Game>(g));
    // The replay applies a cycle's presses first thing in it, where the leader stands now.
    for (; nextPress < base_.size() && base_[nextPress].cycle == g.ReplayTick; ++nextPress) {
      const CharRecord& leader = g.Chars(g.Leader);
      leaderAtPresses_.push_back(leader.Out ? Place{leader.X, leader.Y} : Place{});
    }
    baseOutcome_.end = PlayCycle(g);
    ++baseOutcome_.cycles;
    MarkVisits(g, visited_);
    if (Ended(baseOutcome_.end) || !CanStillWin(g) || baseOutcome_.cycles >= kMaxRun) break;
  }
  baseOutcome_.saved = g.SavedCount;
}

Outcome Replayer::Run(const Presses& presses) const {
  ++runs_;
  const int differs = FirstDifference(base_, presses);
  // The base ended before the first difference: the variation ends just the same.
  if (differs >= baseOutcome_.cycles) return baseOutcome_;
  const std::size_t index =
      std::min(static_cast<std::size_t>(differs / stride_), copies_.size() - 1);
  Game g = *copies_[index];
  const int from = static_cast<int>(index) * stride_;
  Schedule(g, presses, from);
  Outcome o = RunToEnd(g, kMaxRun);
  o.cycles += from;
  return o;
}

}  // namespace qb::analysis
