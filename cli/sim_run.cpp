// The headless run of one level: ticks, the trace lines and the result.
#include "sim_run.h"

#include <memory>
#include <ostream>

#include "file_host.h"
#include "level/loader.h"
#include "play/cycle.h"
#include "play/replay.h"
#include "view_trace.h"

namespace qb {
namespace {

// The used area's kinds, column by column, to find what a cycle changed.
std::vector<int16_t> UsedArea(const Game& g) {
  std::vector<int16_t> kinds;
  kinds.reserve(static_cast<std::size_t>(g.GridWidth * g.GridHeight));
  for (int x = 0; x < g.GridWidth; ++x)
    for (int y = 0; y < g.GridHeight; ++y) kinds.push_back(g.Grid(x, y));
  return kinds;
}

void TraceLine(std::ostream& out, long t, const Game& g, std::vector<int16_t>& previous) {
  out << "{\"t\":" << t << ",\"released\":" << g.CharactersReleased << ",\"saved\":" << g.SavedCount
      << ",\"time\":" << g.TimeLeft << ",\"leader\":" << g.Leader << ",\"stock\":[";
  for (int i = 0; i < kToolCount; ++i) out << (i ? "," : "") << g.ToolStock(i);
  out << "],\"tools\":[" << g.ClimbArmed << "," << g.Climbing << "," << g.Blocking << ","
      << g.Building << "," << g.Bombing << "," << g.JumpStage << "," << g.Lasering << ","
      << g.Tool5Countdown << "],\"chars\":[";
  for (int i = 0; i < g.CharactersTotal; ++i) {
    const CharRecord& c = g.Chars(i);
    out << (i ? "," : "") << "[" << c.X << "," << c.Y << "," << c.Dir << "," << c.Out << ","
        << c.FallCount << "," << c.Splatted << "," << c.Splashed << "," << c.Shocked << ","
        << c.Trapped << "," << c.Teleporting << "]";
  }
  out << "],\"changed\":[";
  const std::vector<int16_t> now = UsedArea(g);
  bool first = true;
  for (std::size_t i = 0; i < now.size(); ++i)
    if (i >= previous.size() || now[i] != previous[i]) {
      const int x = static_cast<int>(i) / g.GridHeight, y = static_cast<int>(i) % g.GridHeight;
      out << (first ? "" : ",") << "[" << x << "," << y << "," << now[i] << "]";
      first = false;
    }
  out << "]}\n";
  previous = now;
}

}  // namespace

SimOutcome RunSimulation(const SimOptions& options, std::ostream& out, std::ostream& err) {
  SimOutcome outcome;
  ReplayFile replay;
  if (options.replay) {
    replay = ParseReplay(*options.replay);
    if (!replay.error.empty()) {
      err << "replay file: " << replay.error << "\n";
      outcome.exitStatus = 2;
      return outcome;
    }
  }
  FileHost host;
  auto game = std::make_unique<Game>(host);
  Game& g = *game;
  g.ui.OptionsChecked(OptSound) = false;
  g.ui.OptionsChecked(OptReplay) = true;
  g.ui.OptionsChecked(OptFastScrolling) = false;
  g.ui.OptionsChecked(OptMusic) = false;
  g.ui.OptionsChecked(OptShowChange) = false;  // the view never moves, so view traces compare
  g.SkipTitle = True;
  g.Drawing = options.drawing;
  g.LevelFile = options.level;
  if (const LoadOutcome load = LoadLevel(g, options.level); !load.Loaded()) {
    err << load.message << "\n";
    if (!load.detail.empty()) err << load.detail << "\n";  // which file, and why it did not count
    outcome.exitStatus = 2;
    return outcome;
  }
  for (int t = 0; t < kReplaySlots; ++t) g.ReplayLog(t) = replay.slots[static_cast<std::size_t>(t)];
  g.ReplayPlaying = g.ReplayLog(0) != "E" ? True : False;
  g.ReplayTick = 0;

  // The run stops where the level ends, with the game as the end left it: what would follow
  // (the result screen, the next load) is the window's business.
  std::vector<int16_t> previous = UsedArea(g);
  ViewTrace view;
  if (options.traceView) view.Line(out, -1, g);
  long cycles = 0;
  LevelEnd end = LevelEnd::None;
  try {
    while (cycles < options.maxCycles && !Ended(end)) {
      const int tick = g.ReplayTick;
      end = RunCycle(g);
      ++cycles;
      if (options.trace) TraceLine(out, cycles - 1, g, previous);
      if (options.traceView) view.Line(out, cycles - 1, g);
      const std::string& done = g.ReplayLog(tick);
      if (!done.empty() && done != "E")
        outcome.recording += std::to_string(tick) + " " + done + "\n";
    }
  } catch (const ProgramFault& fault) {
    err << "program fault in cycle " << cycles << ": " << fault.what() << "\n";
    outcome.exitStatus = 3;
    return outcome;
  }
  out << "{\"result\":\"" << ResultWord(end) << "\",\"cycles\":" << cycles
      << ",\"saved\":" << g.SavedCount << ",\"needed\":" << g.CharactersNeeded
      << ",\"total\":" << g.CharactersTotal << "}\n";
  return outcome;
}

}  // namespace qb
