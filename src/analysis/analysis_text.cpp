// The figures of an analysis in words, one line each.
#include "analysis/analysis_text.h"

#include <iomanip>
#include <sstream>

namespace qb::analysis {

std::string EndName(const Outcome& o) {
  return o.end == LevelEnd::None ? "lost" : ResultWord(o.end);
}

std::string WindowText(const Window& w) {
  return std::to_string(w.earliest) + ".." + std::to_string(w.latest) + " (" +
         std::to_string(w.Width()) + ")";
}

std::string SingleToolText(const SingleToolWins& w) {
  std::string name(1, kReplayLetters[w.tool]);
  if (w.cycles.empty()) return name + " never";
  if (w.cycles.size() == 1) return name + " at 1 cycle (" + std::to_string(w.cycles[0]) + ")";
  return name + " at " + std::to_string(w.cycles.size()) + " cycles (" +
         std::to_string(w.cycles.front()) + ".." + std::to_string(w.cycles.back()) + ")";
}

int CountWidthOne(const Analysis& a, bool shifted) {
  int n = 0;
  for (const PressFigures& f : a.presses) n += (shifted ? f.shifted : f.alone).Width() == 1;
  return n;
}

double Percent(int part, int whole) {
  return whole > 0 ? 100.0 * part / whole : 0.0;
}

std::string ResultLine(const Analysis& a) {
  return EndName(a.result) + ", saved " + std::to_string(a.result.saved) + " / needed " +
         std::to_string(a.needed) + " / total " + std::to_string(a.total) + ", " +
         std::to_string(a.result.cycles) + " of " + std::to_string(a.limit) + " cycles";
}

std::string PressesLine(const Analysis& a) {
  if (!a.result.Won()) return "no windows: the solution does not win";
  return "presses: " + std::to_string(a.presses.size()) +
         ", with a window of one cycle: " + std::to_string(CountWidthOne(a, false)) +
         " moved alone, " + std::to_string(CountWidthOne(a, true)) + " moved with the later ones";
}

std::string PressLine(const PressFigures& f) {
  return "cycle " + std::to_string(f.press.cycle) + " " + f.press.letter + ": alone " +
         WindowText(f.alone) + ", with the later ones " + WindowText(f.shifted) +
         (f.redundant ? ", redundant" : "");
}

std::string NoToolsLine(const Analysis& a) {
  return "no tools: " + EndName(a.noTools) + " (saved " + std::to_string(a.noTools.saved) + ")";
}

std::string OneToolLine(const Analysis& a) {
  std::string line = "one tool:";
  for (const SingleToolWins& w : a.singleTool) line += " " + SingleToolText(w) + ";";
  return a.singleTool.empty() ? line + " none in stock" : line;
}

std::string SpaceLine(const Analysis& a) {
  std::ostringstream out;
  out << "space: " << a.space.visited << " of " << a.space.area << " squares visited ("
      << std::fixed << std::setprecision(1) << Percent(a.space.visited, a.space.area)
      << "%); largest unvisited empty region " << a.space.region << " squares";
  if (a.space.region > 0) out << " from (" << a.space.regionX << ", " << a.space.regionY << ")";
  return out.str();
}

}  // namespace qb::analysis
