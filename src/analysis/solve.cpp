// A search for a win with as few presses as possible.
#include "analysis/solve.h"

#include <chrono>
#include <unordered_map>

namespace qb::analysis {

namespace {

using Clock = std::chrono::steady_clock;

struct TimeUp {};

class Search {
 public:
  Search(const Game& start, Clock::time_point deadline, long maxStates)
      : deadline_(deadline), maxStates_(maxStates) {
    for (int t = 0; t < kToolCount; ++t)
      if (start.ToolStock(t) > 0) tools_.push_back(t);
  }

  // Plays `g` on from the start of a cycle with `left` presses still allowed; true on a win,
  // with the presses that made it in `path`.
  bool From(Game g, int left) {
    while (true) {
      if ((++states_ & 255) == 0 && Clock::now() > deadline_) throw TimeUp{};
      if (maxStates_ > 0 && states_ > maxStates_) throw TimeUp{};
      Game next = g;
      const LevelEnd end = PlayCycle(next);
      if (end == LevelEnd::Won) return true;
      // The game without a press this cycle: if it was reached before with at least as many
      // presses left, everything after it has been searched.
      const bool searched = Ended(end) || !CanStillWin(next) || !Remember(next, left);
      if (left > 0)
        for (int tool : tools_)
          if (Branch(g, tool, left)) return true;
      if (searched) return false;
      g = std::move(next);
    }
  }

  const Presses& Path() const { return path_; }
  long States() const { return states_; }

 private:
  bool Branch(const Game& g, int tool, int left) {
    if (g.ToolStock(tool) == 0) return false;
    Game b = g;
    const Press press{b.ReplayTick, kReplayLetters[tool]};
    b.ReplayLog(press.cycle) = std::string(1, press.letter);
    ++states_;
    const LevelEnd end = PlayCycle(b);
    path_.push_back(press);
    if (end == LevelEnd::Won) return true;
    // A refused press leaves the state the plain cycle reached, remembered with more left.
    if (!Ended(end) && CanStillWin(b) && Remember(b, left - 1) && From(std::move(b), left - 1))
      return true;
    path_.pop_back();
    return false;
  }

  // False when the state was met before with at least `left` presses to spare.
  bool Remember(const Game& g, int left) {
    const auto [it, fresh] = seen_.try_emplace(StateHash(g), left);
    if (fresh) return true;
    if (it->second >= left) return false;
    it->second = left;
    return true;
  }

  Clock::time_point deadline_;
  long maxStates_;
  std::vector<int> tools_;
  std::unordered_map<uint64_t, int> seen_;
  Presses path_;
  long states_ = 0;
};

}  // namespace

Solution Solve(const Game& start, const SolveLimits& limits) {
  Solution s;
  const auto deadline = Clock::now() + std::chrono::duration_cast<Clock::duration>(
                                           std::chrono::duration<double>(limits.seconds));
  Game first = start;
  Schedule(first, {});
  for (int k = 0; k <= limits.maxPresses; ++k) {
    const long left = limits.maxStates > 0 ? limits.maxStates - s.states : 0;
    if (limits.maxStates > 0 && left <= 0) {
      s.result = SolveResult::Undetermined;
      return s;
    }
    Search search(first, deadline, left);
    try {
      const bool won = search.From(first, k);
      s.states += search.States();
      if (won) {
        s.result = SolveResult::Found;
        s.presses = search.Path();
        return s;
      }
    } catch (const TimeUp&) {
      s.states += search.States();
      s.result = SolveResult::Undetermined;
      return s;
    }
  }
  s.result = SolveResult::NoneWithin;
  return s;
}

}  // namespace qb::analysis
