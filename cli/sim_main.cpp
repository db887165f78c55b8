// quorbit-sim: runs a level headless with a replay and prints its trace and result.
#include <fstream>
#include <iostream>
#include <sstream>

#include "core/file_read.h"
#include "sim_run.h"
#include "verify.h"

namespace {

int Usage() {
  std::cerr << "usage: quorbit-sim LEVEL.lvl [--replay FILE] [--max-cycles N]"
               " [--trace | --trace-view] [--record FILE]\n"
               "       quorbit-sim --verify LEVELS_DIR REPLAYS_DIR\n";
  return 2;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc >= 2 && std::string(argv[1]) == "--verify") {
    if (argc != 4) return Usage();
    std::ios::sync_with_stdio(false);
    const bool allWon = qb::VerifyReplays(argv[2], argv[3], std::cout);
    std::cout.flush();
    return allWon ? 0 : 1;
  }
  qb::SimOptions options;
  std::string recordPath;
  for (int i = 1; i < argc; ++i) {
    const std::string a = argv[i];
    const auto value = [&]() -> const char* { return i + 1 < argc ? argv[++i] : nullptr; };
    if (a == "--trace") {
      options.trace = true;
    } else if (a == "--trace-view") {
      options.traceView = true;
    } else if (a == "--replay") {
      const char* path = value();
      if (!path) return Usage();
      const qb::FileRead read = qb::ReadSmallFile(path, qb::kMaxTextFileBytes);
      if (!read.bytes) {
        std::cerr << "cannot read the replay file " << path << ": " << read.error << "\n";
        return 2;
      }
      options.replay = std::string(read.bytes->begin(), read.bytes->end());
    } else if (a == "--max-cycles") {
      const char* n = value();
      if (!n) return Usage();
      try {
        std::size_t used = 0;
        options.maxCycles = std::stol(n, &used);
        if (used != std::string(n).size() || options.maxCycles < 0) throw std::invalid_argument(n);
      } catch (const std::exception&) {
        std::cerr << "--max-cycles takes a whole number of cycles, not \"" << n << "\"\n";
        return 2;
      }
    } else if (a == "--record") {
      const char* path = value();
      if (!path) return Usage();
      recordPath = path;
    } else if (!a.empty() && a[0] == '-') {
      return Usage();
    } else if (options.level.empty()) {
      options.level = a;
    } else {
      return Usage();
    }
  }
  if (options.level.empty()) return Usage();
  if (options.trace && options.traceView) {
    std::cerr << "--trace and --trace-view cannot be used together\n";
    return Usage();
  }
  std::ios::sync_with_stdio(false);
  const qb::SimOutcome outcome = qb::RunSimulation(options, std::cout, std::cerr);
  std::cout.flush();
  if (!recordPath.empty() && outcome.exitStatus != 2) {
    std::ofstream file(recordPath, std::ios::binary);
    file << "# recorded by quorbit-sim from " << options.level << "\n" << outcome.recording;
    if (!file) {
      std::cerr << "cannot write the recording to " << recordPath << "\n";
      return 2;
    }
  }
  return outcome.exitStatus;
}
