// The headless run of one level: ticks, the trace lines and the result.
#pragma once

#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

namespace qb {

struct SimOptions {
  std::string level;
  std::optional<std::string> replay;  // replay file text
  long maxCycles = 100000;
  bool trace = false;      // the rules' state after every cycle
  bool traceView = false;  // what the player sees after every cycle
  bool drawing = true;     // off: the rules run without painting the pictures
};

struct SimOutcome {
  int exitStatus = 0;
  std::string recording;  // the tools applied, as replay text
};

// Runs the level; trace and result lines go to `out`, errors to `err`.
SimOutcome RunSimulation(const SimOptions& options, std::ostream& out, std::ostream& err);

}  // namespace qb
