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

namespace {

struct Region {
  int size = 0;
  int x = -1, y = -1;
  std::vector<Place> squares;  // the squares counted, the first one first
};

// The largest 4-connected region of squares `inside` takes, counting the squares `counts` takes
// and skipping regions that hold a square `rejects` takes. Regions are met top row first.
template <typename Inside, typename Counts, typename Rejects>
Region LargestRegion(int w, int h, Inside inside, Counts counts, Rejects rejects) {
  Region best;
  std::vector<bool> seen(static_cast<std::size_t>(w * h), false);
  std::vector<std::pair<int, int>> stack;
  for (int y = 0; y < h; ++y)
    for (int x = 0; x < w; ++x) {
      if (seen[x + w * y] || !inside(x, y)) continue;
      std::vector<Place> squares;
      bool rejected = false;
      stack.push_back({x, y});
      seen[x + w * y] = true;
      while (!stack.empty()) {
        const auto [cx, cy] = stack.back();
        stack.pop_back();
        if (counts(cx, cy)) squares.push_back({cx, cy});
        rejected = rejected || rejects(cx, cy);
        for (const auto& [nx, ny] :
             {std::pair{cx - 1, cy}, {cx + 1, cy}, {cx, cy - 1}, {cx, cy + 1}}) {
          if (nx < 0 || ny < 0 || nx >= w || ny >= h || seen[nx + w * ny] || !inside(nx, ny))
            continue;
          seen[nx + w * ny] = true;
          stack.push_back({nx, ny});
        }
      }
      const int size = static_cast<int>(squares.size());
      if (!rejected && size > best.size) best = {size, x, y, std::move(squares)};
    }
  return best;
}

}  // namespace

SpaceUse MeasureSpace(const Game& start, const std::vector<bool>& visited) {
  SpaceUse s;
  const int w = start.GridWidth, h = start.GridHeight;
  s.area = w * h;
  const auto entered = [&](int x, int y) {
    return static_cast<bool>(visited[static_cast<std::size_t>(x + GridTable::kColumns * y)]);
  };
  const auto empty = [&](int x, int y) { return start.Grid(x, y) == Empty; };
  for (int y = 0; y < h; ++y)
    for (int x = 0; x < w; ++x) s.visited += entered(x, y) ? 1 : 0;
  const auto never = [](int, int) { return false; };
  const auto always = [](int, int) { return true; };
  const Region unvisited = LargestRegion(
      w, h, [&](int x, int y) { return empty(x, y) && !entered(x, y); }, always, never);
  s.region = unvisited.size;
  s.regionX = unvisited.x;
  s.regionY = unvisited.y;
  s.regionSquares = unvisited.squares;
  const Region sealed = LargestRegion(
      w, h, [&](int x, int y) { return empty(x, y) || entered(x, y); },
      [&](int x, int y) { return empty(x, y) && !entered(x, y); }, entered);
  s.sealed = sealed.size;
  s.sealedX = sealed.x;
  s.sealedY = sealed.y;
  s.sealedSquares = sealed.squares;
  return s;
}

Presses SolutionPresses(const Analysis& a) {
  Presses presses;
  for (const PressFigures& f : a.presses) presses.push_back(f.press);
  return presses;
}

Narrowest NarrowestWindows(const Analysis& a) {
  if (a.presses.empty()) return {};
  Narrowest n{a.presses[0].alone.Width(), a.presses[0].shifted.Width()};
  for (const PressFigures& f : a.presses) {
    n.alone = std::min(n.alone, f.alone.Width());
    n.shifted = std::min(n.shifted, f.shifted.Width());
  }
  return n;
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
