// One game cycle of a full-size level with a hundred characters out and walking, with and
// without drawing, and the copy of a game that saves or restores it.
#include <benchmark/benchmark.h>

#include <memory>

#include "busy_level.h"
#include "play/cycle.h"

namespace {

void BM_CycleHundredWalking(benchmark::State& state) {
  qb::test::TestGame t(qb::bench::BusyLevel());
  t.g.ui.OptionsChecked(qb::OptSound) = false;
  t.Ticks(150);  // everyone released and walking
  int out = 0;
  for (int i = 0; i < 100; ++i) out += t.C(i).Out ? 1 : 0;
  if (out != 100) state.SkipWithError("not every character is out");
  for (auto _ : state) {
    qb::Timer1_Timer(t.g);
    t.g.pic.Picture1.TakeDirty([](int, int) {});
    if (t.g.TimeLeft < 100) t.g.TimeLeft = 30000;
  }
  state.counters["cycles/s"] =
      benchmark::Counter(static_cast<double>(state.iterations()), benchmark::Counter::kIsRate);
}
BENCHMARK(BM_CycleHundredWalking);

// The same cycle with the drawing switched off, as searches and analyses run it.
void BM_CycleHundredWalkingWithoutDrawing(benchmark::State& state) {
  qb::test::TestGame t(qb::bench::BusyLevel());
  t.g.ui.OptionsChecked(qb::OptSound) = false;
  t.g.Drawing = false;
  t.Ticks(150);
  t.g.pic.Picture1.TakeDirty([](int, int) {});  // what the load painted
  for (auto _ : state) {
    qb::Timer1_Timer(t.g);
    if (t.g.TimeLeft < 100) t.g.TimeLeft = 30000;
  }
  if (t.g.pic.Picture1.DirtyCount() != 0) state.SkipWithError("a picture was touched");
  state.counters["cycles/s"] =
      benchmark::Counter(static_cast<double>(state.iterations()), benchmark::Counter::kIsRate);
}
BENCHMARK(BM_CycleHundredWalkingWithoutDrawing);

// Saving a game and restoring it: both are copies of the whole game.
void BM_SaveAndRestoreGame(benchmark::State& state) {
  qb::test::TestGame t(qb::bench::BusyLevel());
  t.g.ui.OptionsChecked(qb::OptSound) = false;
  t.Ticks(150);
  auto saved = std::make_unique<qb::Game>(t.g);
  for (auto _ : state) {
    *saved = t.g;
    t.g = *saved;
    benchmark::DoNotOptimize(t.g.Chars(0).X);
  }
  state.counters["bytes"] = static_cast<double>(sizeof(qb::Game));
}
BENCHMARK(BM_SaveAndRestoreGame);

}  // namespace

BENCHMARK_MAIN();
