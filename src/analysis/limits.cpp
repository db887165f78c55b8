// The limits every shipped level keeps with its solution.
#include "analysis/limits.h"

#include <algorithm>

namespace qb::analysis {

TierLimits LimitsOfTier(int tier) {
  switch (tier) {
    case 0:
      return {4, 2, false, 2, 2, 20};
    case 1:
      return {3, 2, false, 1, 2, 20};
    case 2:
      return {2, 2, false, 1, 2, 15};
    default:
      return {1, 1, true, 0, 1, 10};
  }
}

int SpareTools(const std::vector<int>& stock, const Presses& presses) {
  std::vector<int> used(stock.size(), 0);
  for (const Press& p : presses)
    for (std::size_t t = 0; t < stock.size(); ++t)
      if (kReplayLetters[t] == p.letter) ++used[t];
  int spare = 0;
  for (std::size_t t = 0; t < stock.size(); ++t)
    if (used[t] > 0) spare += stock[t] - used[t];
  return spare;
}

bool IsOneCycle(const PressFigures& f) {
  return f.alone.Width() == 1 || f.shifted.Width() == 1;
}

int CountOneCycle(const Analysis& a) {
  return static_cast<int>(std::count_if(a.presses.begin(), a.presses.end(), IsOneCycle));
}

namespace {

std::string PressName(const PressFigures& f) {
  return "the " + std::string(1, f.press.letter) + " at cycle " + std::to_string(f.press.cycle);
}

// The window rules: the narrowest widths, and the one-cycle presses where a tier allows some.
void CheckWindows(const Analysis& a, const TierLimits& l, std::vector<std::string>& out) {
  bool previousOne = false;
  for (const PressFigures& f : a.presses) {
    const bool one = IsOneCycle(f);
    if (one && previousOne && l.oneCycleAllowed)
      out.push_back(PressName(f) + " is the second one-cycle press in a row");
    previousOne = one;
    if (f.alone.Width() < l.narrowestWindow)
      out.push_back(PressName(f) + " has a window of " + std::to_string(f.alone.Width()) +
                    " cycles, under " + std::to_string(l.narrowestWindow));
    if (f.shifted.Width() < l.narrowestShifted)
      out.push_back(PressName(f) + " moved with the later presses has a window of " +
                    std::to_string(f.shifted.Width()) + " cycles, under " +
                    std::to_string(l.narrowestShifted));
    if (f.redundant) out.push_back(PressName(f) + " is redundant: the level is won without it");
  }
  if (const int oneCycle = CountOneCycle(a);
      l.oneCycleAllowed && 4 * oneCycle > static_cast<int>(a.presses.size()))
    out.push_back(std::to_string(oneCycle) + " of " + std::to_string(a.presses.size()) +
                  " presses have a one-cycle window, more than a quarter");
}

void CheckShortcuts(const LevelUnderTest& level, std::vector<std::string>& out) {
  const Analysis& a = *level.analysis;
  const int presses = static_cast<int>(a.presses.size());
  if (a.noTools.Won() && !(level.tier == 0 && level.number < kFirstLevelWithTools))
    out.push_back("the level is won with no tools");
  if (presses >= kNoSinglePressFrom)
    for (const SingleToolWins& w : a.singleTool)
      if (!w.cycles.empty())
        out.push_back(std::string("one press of ") + kReplayLetters[w.tool] +
                      " wins it (at cycle " + std::to_string(w.cycles.front()) + ")");
  if (level.twoPressSearch && level.twoPressSearch->result == SolveResult::Found) {
    std::string found;
    for (const Press& p : level.twoPressSearch->presses)
      found += " " + std::to_string(p.cycle) + " " + p.letter;
    out.push_back("a search wins it with " + std::to_string(level.twoPressSearch->presses.size()) +
                  " presses:" + found);
  }
}

void CheckSpace(const SpaceUse& s, std::vector<std::string>& out) {
  if (10 * s.sealed > s.area)
    out.push_back("a sealed region of " + std::to_string(s.sealed) + " empty squares from (" +
                  std::to_string(s.sealedX) + ", " + std::to_string(s.sealedY) +
                  ") is more than a tenth of the " + std::to_string(s.area) + " squares");
  if (100 * s.visited < 8 * s.area)
    out.push_back("only " + std::to_string(s.visited) + " of " + std::to_string(s.area) +
                  " squares are visited, under 8%");
}

}  // namespace

std::vector<std::string> Breaches(const LevelUnderTest& level) {
  std::vector<std::string> out;
  const Analysis& a = *level.analysis;
  const TierLimits l = LimitsOfTier(level.tier);
  if (!a.result.Won()) return {"the solution does not win"};
  CheckWindows(a, l, out);
  const Presses presses = SolutionPresses(a);
  // A walking lesson has no tools to spare.
  const bool hasTools =
      std::any_of(level.stock.begin(), level.stock.end(), [](int n) { return n > 0; });
  if (const int spare = SpareTools(level.stock, presses); hasTools && spare < l.spareTools)
    out.push_back(std::to_string(spare) + " spare tools, under " + std::to_string(l.spareTools));
  if (a.result.saved - a.needed < l.savedMargin)
    out.push_back("saved " + std::to_string(a.result.saved) + " with " + std::to_string(a.needed) +
                  " needed, a margin under " + std::to_string(l.savedMargin));
  if (100 * (a.limit - a.result.cycles) < l.timeLeftPercent * a.limit)
    out.push_back("won at cycle " + std::to_string(a.result.cycles) + " of " +
                  std::to_string(a.limit) + ", under " + std::to_string(l.timeLeftPercent) +
                  "% of the time left");
  CheckShortcuts(level, out);
  CheckSpace(a.space, out);
  return out;
}

}  // namespace qb::analysis
