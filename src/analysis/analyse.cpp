// The figures of a level and its solution.
#include "analysis/analyse.h"

#include <functional>
#include <utility>

namespace qb::analysis {

namespace {

// Widens [at, at] while `wins` holds for the next cycle out, within [low, high].
Window Widen(int at, int low, int high, const std::function<bool(int)>& wins) {
  Window w{at, at};
  while (w.earliest - 1 >= low && wins(w.earliest - 1)) --w.earliest;
  while (w.latest + 1 <= high && wins(w.latest + 1)) ++w.latest;
  return w;
}

PressFigures Figures(const Replayer& r, std::size_t i, int limit) {
  const Presses& base = r.Base();
  PressFigures f;
  f.press = base[i];
  const int last = std::min(limit - 1, kLastReplayTick);
  f.alone = Widen(f.press.cycle, 0, last, [&](int cycle) {
    Presses moved = base;
    moved[i].cycle = cycle;
    // Among one cycle's letters, a press moved there comes after those already there.
    moved.erase(moved.begin() + static_cast<std::ptrdiff_t>(i));
    std::size_t at = 0;
    while (at < moved.size() && moved[at].cycle <= cycle) ++at;
    moved.insert(moved.begin() + static_cast<std::ptrdiff_t>(at), {cycle, f.press.letter});
    return r.Run(moved).Won();
  });
  const int lastPress = base.back().cycle;
  f.shifted = Widen(f.press.cycle, 0, last - (lastPress - f.press.cycle), [&](int cycle) {
    Presses moved = base;
    const int by = cycle - f.press.cycle;
    for (std::size_t j = i; j < moved.size(); ++j) moved[j].cycle += by;
    SortByCycle(moved);
    return r.Run(moved).Won();
  });
  Presses without = base;
  without.erase(without.begin() + static_cast<std::ptrdiff_t>(i));
  f.redundant = r.Run(without).Won();
  return f;
}

}  // namespace

std::vector<SingleToolWins> SingleToolShortcuts(const Game& start, long& runs) {
  std::vector<SingleToolWins> wins;
  for (int t = 0; t < kToolCount; ++t)
    if (start.ToolStock(t) > 0) wins.push_back({t, {}});
  Game g = start;
  Schedule(g, {});
  while (true) {
    Game next = g;
    const LevelEnd end = PlayCycle(next);
    const uint64_t plain = StateHash(next);
    for (SingleToolWins& w : wins) {
      Game b = g;
      b.ReplayLog(b.ReplayTick) = std::string(1, kReplayLetters[w.tool]);
      const int cycle = b.ReplayTick;
      const LevelEnd first = PlayCycle(b);
      ++runs;
      // A press the game refuses leaves the game as no press does.
      if (first == end && StateHash(b) == plain) continue;
      const bool won = first == LevelEnd::Won ||
                       (!Ended(first) && CanStillWin(b) && RunToEnd(b, CycleLimit(start)).Won());
      if (won) w.cycles.push_back(cycle);
    }
    if (Ended(end) || !CanStillWin(next)) break;
    g = std::move(next);
  }
  return wins;
}

SpaceUse MeasureSpace(const Game& start, const std::vector<bool>& visited) {
  SpaceUse s;
  const int w = start.GridWidth, h = start.GridHeight;
  s.area = w * h;
  const auto index = [](int x, int y) {
    return static_cast<std::size_t>(x + GridTable::kColumns * y);
  };
  for (int y = 0; y < h; ++y)
    for (int x = 0; x < w; ++x) s.visited += visited[index(x, y)] ? 1 : 0;
  std::vector<bool> seen(visited.size(), false);
  std::vector<std::pair<int, int>> stack;
  for (int y = 0; y < h; ++y)
    for (int x = 0; x < w; ++x) {
      if (seen[index(x, y)] || visited[index(x, y)] || start.Grid(x, y) != Empty) continue;
      std::vector<Place> region;
      stack.push_back({x, y});
      seen[index(x, y)] = true;
      while (!stack.empty()) {
        const auto [cx, cy] = stack.back();
        stack.pop_back();
        region.push_back({cx, cy});
        for (const auto& [nx, ny] :
             {std::pair{cx - 1, cy}, {cx + 1, cy}, {cx, cy - 1}, {cx, cy + 1}}) {
          if (nx < 0 || ny < 0 || nx >= w || ny >= h) continue;
          const std::size_t n = index(nx, ny);
          if (seen[n] || visited[n] || start.Grid(nx, ny) != Empty) continue;
          seen[n] = true;
          stack.push_back({nx, ny});
        }
      }
      if (static_cast<int>(region.size()) > s.region) {
        s.region = static_cast<int>(region.size());
        s.regionX = x;
        s.regionY = y;
        s.regionSquares = std::move(region);
      }
    }
  return s;
}

Analysis Analyse(const Game& start, const Presses& solution) {
  Analysis a;
  const Replayer r(start, solution);
  a.result = r.BaseOutcome();
  a.limit = CycleLimit(start);
  a.needed = start.CharactersNeeded;
  a.total = start.CharactersTotal;
  if (a.result.Won())
    for (std::size_t i = 0; i < r.Base().size(); ++i) {
      a.presses.push_back(Figures(r, i, a.limit));
      if (i < r.LeaderAtPresses().size()) a.presses.back().leader = r.LeaderAtPresses()[i];
    }
  a.noTools = r.Run({});
  a.singleTool = SingleToolShortcuts(start, a.runs);
  a.space = MeasureSpace(start, r.Visited());
  a.runs += r.Runs() + 1;
  return a;
}

}  // namespace qb::analysis
