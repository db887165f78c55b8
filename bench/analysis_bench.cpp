// The whole analysis of the biggest shipped level (120 by 80, a hundred characters) with its
// solution: windows, redundant presses, shortcuts and space.
#include <benchmark/benchmark.h>

#include <fstream>
#include <sstream>

#include "analysis/analyse.h"
#include "file_host.h"
#include "level/loader.h"
#include "play/replay.h"

namespace {

void BM_AnalyseExpert20(benchmark::State& state) {
  qb::FileHost host;
  auto g = std::make_unique<qb::Game>(host);
  qb::analysis::MakeHeadless(*g);
  if (!qb::LoadLevel(*g, QUORBIT_LEVELS_DIR "/Expert20.lvl").Loaded()) {
    state.SkipWithError("the level is not built");
    return;
  }
  std::ifstream in(QUORBIT_SOLUTIONS_DIR "/Expert20.replay");
  std::ostringstream text;
  text << in.rdbuf();
  const auto presses = qb::analysis::PressesOf(qb::ParseReplay(text.str()).slots);
  long plays = 0;
  for (auto _ : state) {
    const qb::analysis::Analysis a = qb::analysis::Analyse(*g, presses);
    if (!a.result.Won()) state.SkipWithError("the solution does not win");
    plays = a.runs;
  }
  state.counters["plays"] = static_cast<double>(plays);
}
BENCHMARK(BM_AnalyseExpert20)->Unit(benchmark::kSecond)->Iterations(1);

}  // namespace

BENCHMARK_MAIN();
