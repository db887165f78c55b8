// Stepping back one cycle late in a 2,000-cycle attempt on a full-size level with a hundred
// characters out: a copy of the game restored and up to one spacing of cycles run again.
#include <benchmark/benchmark.h>

#include "play/cycle.h"
#include "play/step_history.h"
#include "support/level_builder.h"

namespace {

qb::LevelData CrowdedLevel() {
  std::vector<std::string> rows(80, std::string(120, '.'));
  for (int floor = 0; floor < 10; ++floor) {
    const int y = 7 + floor * 8;
    rows[y] = std::string(120, 'M');
    rows[y - 1][0] = rows[y - 2][0] = 'M';
    rows[y - 1][119] = rows[y - 2][119] = 'M';
  }
  qb::LevelData d = qb::test::MakeLevel(rows, 5, 6, 100, 100, 1, 30000);
  for (int j = 0; j < 6; ++j)
    d.Slots[j] = {-1, 0, 0, 5 + 18 * j, static_cast<int16_t>(6 + 8 * j), 0, 0, 0, 0};
  return d;
}

void BM_StepBackAfterTwoThousandCycles(benchmark::State& state) {
  qb::test::TestGame t(CrowdedLevel());
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
