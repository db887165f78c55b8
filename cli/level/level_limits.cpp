// quorbit-level limits: checks shipped levels against the limits of their tier, with their
// solutions, and that no two of them share a title.
#include <filesystem>
#include <iomanip>
#include <map>
#include <ostream>

#include "analysis/analysis_text.h"
#include "analysis/limits.h"
#include "command_input.h"
#include "level_analysis.h"

namespace qb::leveltext {
namespace {

using namespace qb::analysis;

// The states the search for a two-press win may look at: a fixed budget, so that the verdict
// does not depend on the machine's speed.
constexpr long kDefaultSearchStates = 400000;

// The level's figures on one line: what a player feels of it.
void PrintFigures(std::ostream& out, const LevelUnderTest& level) {
  const Analysis& a = *level.analysis;
  const Narrowest narrowest = NarrowestWindows(a);
  out << "presses " << a.presses.size();
  if (!a.presses.empty())
    out << ", narrowest window " << narrowest.alone << " (with the later ones " << narrowest.shifted
        << "), one-cycle " << CountOneCycle(a);
  out << ", spare " << SpareTools(level.stock, SolutionPresses(a)) << ", margin "
      << a.result.saved - a.needed << ", time left " << std::fixed << std::setprecision(0)
      << Percent(a.limit - a.result.cycles, a.limit) << "%, visited " << std::setprecision(1)
      << Percent(a.space.visited, a.space.area) << "%, sealed " << a.space.sealed << " of "
      << a.space.area;
  if (level.twoPressSearch)
    out << ", two-press search "
        << (level.twoPressSearch->result == SolveResult::Found        ? "wins"
            : level.twoPressSearch->result == SolveResult::NoneWithin ? "finds none"
                                                                      : "undetermined");
}

// Checks one level; false when it breaks a limit or cannot be checked.
bool CheckLevel(const std::string& path, const std::string& solutionPath, long searchStates,
                std::map<std::string, std::string>& titles, std::ostream& out, std::ostream& err) {
  const auto solution = ReadSolution(solutionPath, err);
  const auto loaded = LoadHeadless(path, err);
  if (!solution || !loaded) return false;
  const Game& g = loaded->game;
  LevelUnderTest level{g.CurrentSkill, g.LevelNumber, {}, nullptr, std::nullopt};
  for (int t = 0; t < kToolCount; ++t) level.stock.push_back(g.ToolStock(t));
  const Analysis a = Analyse(g, *solution);
  level.analysis = &a;
  if (static_cast<int>(solution->size()) >= kNoTwoPressWinFrom)
    level.twoPressSearch = qb::analysis::Solve(g, {2, 1e9, searchStates});
  std::vector<std::string> breaches = Breaches(level);
  const auto [first, fresh] = titles.try_emplace(g.LevelTitle, path);
  if (!fresh)
    breaches.push_back("the title \"" + g.LevelTitle + "\" is also " + first->second + "'s");
  out << path << ": " << (breaches.empty() ? "within limits" : "BREAKS LIMITS") << " (";
  PrintFigures(out, level);
  out << ")\n";
  for (const std::string& b : breaches) out << "  - " << b << "\n";
  return breaches.empty();
}

}  // namespace

int Limits(const std::vector<std::string>& given, std::ostream& out, std::ostream& err) {
  std::vector<std::string> args = given;
  std::string replay, solutions, states = std::to_string(kDefaultSearchStates);
  const bool ok = TakeValue(args, "--replay", replay) &&
                  TakeValue(args, "--solutions", solutions) &&
                  TakeValue(args, "--search-states", states);
  const auto budget = Number(states, 1, 1e9);
  if (!ok || args.empty() || replay.empty() == solutions.empty() ||
      (!replay.empty() && args.size() != 1) || !budget) {
    err << "usage: quorbit-level limits LEVEL.lvl --replay SOLUTION [--search-states N]\n"
           "       quorbit-level limits LEVEL.lvl... --solutions DIR [--search-states N]\n";
    return 2;
  }
  std::map<std::string, std::string> titles;
  int broken = 0;
  for (const std::string& path : args) {
    const std::string solution =
        !replay.empty() ? replay
                        : (std::filesystem::path(solutions) /
                           std::filesystem::path(path).filename().replace_extension(".replay"))
                              .string();
    try {
      broken += CheckLevel(path, solution, static_cast<long>(*budget), titles, out, err) ? 0 : 1;
    } catch (const ProgramFault& fault) {
      err << path << ": error: a program fault while playing: " << fault.what() << "\n";
      ++broken;
    }
  }
  if (args.size() > 1)
    out << args.size() - broken << " of " << args.size() << " levels within limits\n";
  return broken == 0 ? 0 : 1;
}

}  // namespace qb::leveltext
