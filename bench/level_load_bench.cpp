// How long loading a full-size 120 by 80 level takes: reading the bytes, and the whole load.
#include <benchmark/benchmark.h>

#include "core/game.h"
#include "level/loader.h"
#include "support/level_builder.h"
#include "support/recorder_host.h"

namespace {

// A 120 by 80 level with every square kind spread over the grid and six entrances.
std::vector<uint8_t> FullSizeLevel() {
  qb::LevelData d;
  d.Title = "Benchmark";
  d.Number = 1;
  d.CharactersTotal = 100;
  d.CharactersNeeded = 50;
  d.TimeLeft = 1000;
  d.GridWidth = 120;
  d.GridHeight = 80;
  d.ReleaseInterval = 3;
  d.StartViewX = 40;
  d.StartViewY = 20;
  d.Squares.resize(120 * 80);
  for (int y = 0; y < 80; ++y)
    for (int x = 0; x < 120; ++x) d.Square(x, y) = static_cast<int16_t>((x * 7 + y * 3) % 18);
  for (int j = 0; j < 6; ++j) {
    d.Slots[static_cast<std::size_t>(j)].EntranceActive = -1;
    d.Slots[static_cast<std::size_t>(j)].EntranceX = 10 + 15 * j;
    d.Slots[static_cast<std::size_t>(j)].EntranceY = 5;
  }
  return qb::WriteLevel(d);
}

void BM_ReadAndApplyLevel(benchmark::State& state) {
  const auto bytes = FullSizeLevel();
  qb::test::RecorderHost host;
  qb::Game g(host);
  for (auto _ : state) {
    const qb::LevelRead read = qb::ReadLevel(bytes);
    if (read.status != qb::ReadStatus::Ok) state.SkipWithError("level refused");
    qb::ApplyLevel(g, read.data);
    benchmark::DoNotOptimize(g.Grid(119, 79));
  }
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) *
                          static_cast<int64_t>(bytes.size()));
}
BENCHMARK(BM_ReadAndApplyLevel);

void BM_LoadLevel(benchmark::State& state) {
  qb::test::RecorderHost host;
  host.files["big.lvl"] = FullSizeLevel();
  qb::Game g(host);
  g.SkipTitle = qb::True;
  g.ReplayLog(0) = 'E';  // a char: g++ 12 -O3 misreads "E" (-Wrestrict)
  for (auto _ : state) {
    if (!qb::LoadLevel(g, "big.lvl").Loaded()) state.SkipWithError("refused");
    benchmark::DoNotOptimize(g.pic.Map.version);
  }
}
BENCHMARK(BM_LoadLevel);

}  // namespace

BENCHMARK_MAIN();
