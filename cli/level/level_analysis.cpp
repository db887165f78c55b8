// The analysis subcommands of quorbit-level: analyse and solve.
#include "level_analysis.h"

#include <chrono>
#include <cmath>
#include <iomanip>
#include <memory>
#include <ostream>
#include <sstream>

#include "analysis/analyse.h"
#include "analysis/analysis_text.h"
#include "analysis/limits.h"
#include "analysis/solve.h"
#include "command_input.h"
#include "core/file_read.h"
#include "level/loader.h"
#include "leveltext/level_files.h"
#include "play/replay.h"

namespace qb::leveltext {
namespace {

using namespace qb::analysis;

void PrintText(std::ostream& out, const std::string& level, const Analysis& a, double seconds) {
  out << level << ": " << ResultLine(a) << "\n" << PressesLine(a) << "\n";
  for (const PressFigures& f : a.presses) out << "  " << PressLine(f) << "\n";
  out << NoToolsLine(a) << "\n" << OneToolLine(a) << "\n" << SpaceLine(a) << "\n";
  out << a.runs << " plays in " << std::fixed << std::setprecision(2) << seconds << " s\n";
}

// A file name as a JSON string: quotes, backslashes and control characters escaped.
std::string JsonString(const std::string& text) {
  std::string out = "\"";
  for (char c : text) {
    if (c == '"' || c == '\\') out += '\\';
    if (static_cast<unsigned char>(c) < 0x20) {
      static const char* const kHex = "0123456789abcdef";
      out += std::string("\\u00") + kHex[(c >> 4) & 0xF] + kHex[c & 0xF];
      continue;
    }
    out += c;
  }
  return out + "\"";
}

void PrintJson(std::ostream& out, const std::string& level, const Analysis& a, double seconds) {
  out << "{\"level\":" << JsonString(level) << ",\"result\":\"" << EndName(a.result)
      << "\",\"saved\":" << a.result.saved << ",\"needed\":" << a.needed << ",\"total\":" << a.total
      << ",\"cycles\":" << a.result.cycles << ",\"limit\":" << a.limit << "}\n";
  for (std::size_t i = 0; i < a.presses.size(); ++i) {
    const PressFigures& f = a.presses[i];
    out << "{\"press\":" << i << ",\"cycle\":" << f.press.cycle << ",\"letter\":\""
        << f.press.letter << "\",\"earliest\":" << f.alone.earliest
        << ",\"latest\":" << f.alone.latest << ",\"width\":" << f.alone.Width()
        << ",\"shifted_earliest\":" << f.shifted.earliest
        << ",\"shifted_latest\":" << f.shifted.latest << ",\"shifted_width\":" << f.shifted.Width()
        << ",\"redundant\":" << (f.redundant ? "true" : "false") << "}\n";
  }
  out << "{\"no_tools\":\"" << EndName(a.noTools) << "\",\"no_tools_saved\":" << a.noTools.saved
      << "}\n";
  for (const SingleToolWins& w : a.singleTool) {
    out << "{\"tool\":\"" << kReplayLetters[w.tool] << "\",\"wins\":" << w.cycles.size();
    if (!w.cycles.empty())
      out << ",\"first\":" << w.cycles.front() << ",\"last\":" << w.cycles.back();
    out << "}\n";
  }
  out << "{\"area\":" << a.space.area << ",\"visited\":" << a.space.visited
      << ",\"visited_share\":" << std::fixed << std::setprecision(4)
      << (a.space.area ? static_cast<double>(a.space.visited) / a.space.area : 0.0)
      << ",\"region\":" << a.space.region << ",\"region_x\":" << a.space.regionX
      << ",\"region_y\":" << a.space.regionY << ",\"sealed\":" << a.space.sealed
      << ",\"sealed_x\":" << a.space.sealedX << ",\"sealed_y\":" << a.space.sealedY << "}\n";
  out << "{\"plays\":" << a.runs << ",\"seconds\":" << std::setprecision(3) << seconds << "}\n";
}

// One row of the levels' figures table, after the level's own cells: what a player feels of the
// solution (the narrowest windows, moved alone / with the later presses), its margins, and the
// shortcuts and space.
void PrintMarkdown(std::ostream& out, const Analysis& a, const std::vector<int>& stock) {
  std::string redundant, wins;
  for (const PressFigures& f : a.presses)
    if (f.redundant)
      redundant +=
          (redundant.empty() ? "" : ", ") + std::to_string(f.press.cycle) + " " + f.press.letter;
  const Narrowest narrowest = NarrowestWindows(a);
  for (const SingleToolWins& w : a.singleTool)
    if (!w.cycles.empty()) wins += (wins.empty() ? "" : ", ") + SingleToolText(w);
  out << EndName(a.result) << " in " << a.result.cycles << " of " << a.limit << " | "
      << a.presses.size() << " | "
      << (a.presses.empty()
              ? "-"
              : std::to_string(narrowest.alone) + " / " + std::to_string(narrowest.shifted))
      << " | " << CountWidthOne(a, false) << " / " << CountWidthOne(a, true) << " | "
      << SpareTools(stock, SolutionPresses(a)) << " | " << a.result.saved - a.needed << " | "
      << std::fixed << std::setprecision(0) << Percent(a.limit - a.result.cycles, a.limit) << "% | "
      << (redundant.empty() ? "none" : redundant) << " | " << (a.noTools.Won() ? "won" : "lost")
      << " | " << (wins.empty() ? "none" : wins) << " | " << std::setprecision(1)
      << Percent(a.space.visited, a.space.area) << "% | " << a.space.sealed << " |\n";
}

double SecondsSince(std::chrono::steady_clock::time_point t0) {
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - t0).count();
}

}  // namespace

std::unique_ptr<analysis::HeadlessLevel> LoadHeadless(const std::string& path, std::ostream& err) {
  const FileRead file = ReadSmallFile(path, kMaxLevelFileBytes);
  std::string refusal;
  auto level = analysis::LoadHeadless(path, file.bytes.value_or(std::vector<uint8_t>{}), refusal);
  if (!level) err << path << ": error: " << refusal << "\n";
  return level;
}

int Analyse(const std::vector<std::string>& given, std::ostream& out, std::ostream& err) {
  std::vector<std::string> args = given;
  std::string replayPath;
  const bool json = TakeFlag(args, "--json"), markdown = TakeFlag(args, "--markdown");
  if (!TakeValue(args, "--replay", replayPath) || replayPath.empty() || args.size() != 1 ||
      (json && markdown)) {
    err << "usage: quorbit-level analyse LEVEL.lvl --replay SOLUTION [--json | --markdown]\n";
    return 2;
  }
  const auto solution = ReadSolution(replayPath, err);
  if (!solution) return 1;
  const auto level = LoadHeadless(args[0], err);
  if (!level) return 1;
  const auto t0 = std::chrono::steady_clock::now();
  try {
    const Analysis a = Analyse(level->game, *solution);
    if (json) {
      PrintJson(out, args[0], a, SecondsSince(t0));
    } else if (markdown) {
      std::vector<int> stock;
      for (int t = 0; t < kToolCount; ++t) stock.push_back(level->game.ToolStock(t));
      PrintMarkdown(out, a, stock);
    } else {
      PrintText(out, args[0], a, SecondsSince(t0));
    }
  } catch (const ProgramFault& fault) {
    err << args[0] << ": error: a program fault while playing: " << fault.what() << "\n";
    return 3;
  }
  return 0;
}

int Solve(const std::vector<std::string>& given, std::ostream& out, std::ostream& err) {
  std::vector<std::string> args = given;
  std::string presses = "2", seconds = "60";
  const bool ok =
      TakeValue(args, "--max-presses", presses) && TakeValue(args, "--seconds", seconds);
  const auto k = Number(presses, 0, 20);
  const auto s = Number(seconds, 0, 1e6);
  if (!ok || args.size() != 1 || !k || *k != std::floor(*k) || !s) {
    err << "usage: quorbit-level solve LEVEL.lvl [--max-presses K (0 to 20)] [--seconds S]\n";
    return 2;
  }
  const auto level = LoadHeadless(args[0], err);
  if (!level) return 1;
  const auto t0 = std::chrono::steady_clock::now();
  try {
    const Solution found = qb::analysis::Solve(level->game, {static_cast<int>(*k), *s});
    out << "# " << args[0] << ": ";
    if (found.result == SolveResult::Found)
      out << "won with " << found.presses.size() << " presses";
    else if (found.result == SolveResult::NoneWithin)
      out << "no win with at most " << *k << " presses";
    else
      out << "undetermined: the time limit of " << *s << " s ended the search";
    out << "; " << found.states << " states searched in " << std::fixed << std::setprecision(2)
        << SecondsSince(t0) << " s\n";
    out << ReplayText(found.presses);
    return found.result == SolveResult::Found ? 0 : 1;
  } catch (const ProgramFault& fault) {
    err << args[0] << ": error: a program fault while playing: " << fault.what() << "\n";
    return 3;
  }
}

}  // namespace qb::leveltext
