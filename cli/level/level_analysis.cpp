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
#include "analysis/solve.h"
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
      << ",\"region_y\":" << a.space.regionY << "}\n";
  out << "{\"plays\":" << a.runs << ",\"seconds\":" << std::setprecision(3) << seconds << "}\n";
}

// One row of the levels' figures table, after the level's own cells.
void PrintMarkdown(std::ostream& out, const Analysis& a) {
  std::string redundant, wins;
  for (const PressFigures& f : a.presses)
    if (f.redundant)
      redundant +=
          (redundant.empty() ? "" : ", ") + std::to_string(f.press.cycle) + " " + f.press.letter;
  for (const SingleToolWins& w : a.singleTool)
    if (!w.cycles.empty()) wins += (wins.empty() ? "" : ", ") + SingleToolText(w);
  out << EndName(a.result) << " in " << a.result.cycles << " of " << a.limit << " | "
      << a.presses.size() << " | " << CountWidthOne(a, false) << " / " << CountWidthOne(a, true)
      << " | " << (redundant.empty() ? "none" : redundant) << " | "
      << (a.noTools.Won() ? "won" : "lost") << " | " << (wins.empty() ? "none" : wins) << " | "
      << std::fixed << std::setprecision(1) << Percent(a.space.visited, a.space.area) << "% | "
      << a.space.region << " |\n";
}

// Takes "--name VALUE" out of the arguments; false when VALUE is missing.
bool TakeValue(std::vector<std::string>& args, const std::string& name, std::string& value) {
  for (std::size_t i = 0; i < args.size(); ++i)
    if (args[i] == name) {
      if (i + 1 >= args.size()) return false;
      value = args[i + 1];
      args.erase(args.begin() + static_cast<std::ptrdiff_t>(i),
                 args.begin() + static_cast<std::ptrdiff_t>(i) + 2);
      return true;
    }
  return true;
}

bool TakeFlag(std::vector<std::string>& args, const std::string& name) {
  for (std::size_t i = 0; i < args.size(); ++i)
    if (args[i] == name) {
      args.erase(args.begin() + static_cast<std::ptrdiff_t>(i));
      return true;
    }
  return false;
}

// A whole or decimal number in [low, high]; nothing otherwise.
std::optional<double> Number(const std::string& text, double low, double high) {
  std::istringstream in(text);
  double v = 0;
  if (!(in >> v) || !in.eof() || !std::isfinite(v) || v < low || v > high) return std::nullopt;
  return v;
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
  const FileRead text = ReadSmallFile(replayPath, kMaxTextFileBytes);
  if (!text.bytes) {
    err << replayPath << ": error: cannot read the file: " << text.error << "\n";
    return 1;
  }
  const ReplayFile replay = ParseReplay(std::string(text.bytes->begin(), text.bytes->end()));
  if (!replay.error.empty()) {
    err << replayPath << ": error: " << replay.error << "\n";
    return 1;
  }
  const auto level = LoadHeadless(args[0], err);
  if (!level) return 1;
  const auto t0 = std::chrono::steady_clock::now();
  try {
    const Analysis a = Analyse(level->game, PressesOf(replay.slots));
    if (json) {
      PrintJson(out, args[0], a, SecondsSince(t0));
    } else if (markdown) {
      PrintMarkdown(out, a);
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
