// Stepping back one cycle late in a 2,000-cycle attempt on a full-size level with a hundred
// characters out: a copy of the game restored and up to one spacing of cycles run again.
#include <benchmark/benchmark.h>

#include "busy_level.h"
#include "play/cycle.h"
#include "play/step_history.h"

namespace {

void BM_StepBackAfterTwoThousandCycles(benchmark::State& state) {
  qb::test::TestGame t(qb::bench::BusyLevel());
  t.g.ui.OptionsChecked(qb::OptSound) = false;
  qb::StepHistory history;
  for (int i = 0; i < 2000; ++i) {
    history.Keep(t.g);
    if (qb::Ended(qb::RunCycle(t.g))) state.SkipWithError("the level ended");
  }
  history.Keep(t.g);
  state.counters["copies"] = static_cast<double>(history.Copies());
  state.counters["MB"] = static_cast<double>(history.CopiesBytes()) / (1 << 20);
  for (auto _ : state) {
    state.PauseTiming();
    qb::StepHistory h = history;
    qb::Game g = t.g;
    state.ResumeTiming();
    // Cycle 1999 is the farthest from a copy: the whole spacing is run again.
    if (!h.StepBack(g)) state.SkipWithError("no step back");
    benchmark::DoNotOptimize(g.attempt.cycles);
  }
}
BENCHMARK(BM_StepBackAfterTwoThousandCycles)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
