// Running a level with no window: the set-up, presses as replay entries, and a state's hash.
#include "analysis/headless.h"

#include <algorithm>
#include <cstring>

#include "play/cycle.h"

namespace qb::analysis {

void MakeHeadless(Game& g) {
  g.ui.OptionsChecked(OptSound) = false;
  g.ui.OptionsChecked(OptMusic) = false;
  g.ui.OptionsChecked(OptReplay) = true;
  g.ui.OptionsChecked(OptFastScrolling) = false;
  g.ui.OptionsChecked(OptShowChange) = false;
  g.SkipTitle = True;
  g.Drawing = false;
}

void Schedule(Game& g, const Presses& presses, int from) {
  for (int t = from; t <= kLastReplayTick; ++t) g.ReplayLog(t).clear();
  for (const Press& p : presses)
    if (p.cycle >= from && p.cycle <= kLastReplayTick) g.ReplayLog(p.cycle) += p.letter;
  g.ReplayPlaying = True;
}

Presses PressesOf(const std::vector<std::string>& slots) {
  Presses out;
  for (std::size_t t = 0; t < slots.size(); ++t)
    for (char letter : slots[t]) {
      if (letter == 'E') return out;
      out.push_back({static_cast<int>(t), letter});
    }
  return out;
}

std::string ReplayText(const Presses& presses) {
  std::string out;
  for (std::size_t i = 0; i < presses.size(); ++i) {
    const bool sameCycle = i > 0 && presses[i - 1].cycle == presses[i].cycle;
    if (!sameCycle) out += (i > 0 ? "\n" : "") + std::to_string(presses[i].cycle) + " ";
    out += presses[i].letter;
  }
  return presses.empty() ? out : out + "\n";
}

void SortByCycle(Presses& presses) {
  std::stable_sort(presses.begin(), presses.end(),
                   [](const Press& a, const Press& b) { return a.cycle < b.cycle; });
}

LevelEnd PlayCycle(Game& g) {
  try {
    return RunCycle(g);
  } catch (const ProgramFault&) {
    return LevelEnd::Lost;
  }
}

int CycleLimit(const Game& loaded) {
  // One unit of time passes every second cycle, and the level ends when it would go below 0.
  return 2 * (loaded.TimeLeft + 1) - (loaded.TimerHalfTick ? 0 : 1);
}

bool CanStillWin(const Game& g) {
  int out = 0;
  const CharRecord* chars = g.Chars.First(g.CharactersTotal);
  for (int i = 0; i < g.CharactersTotal; ++i) out += chars[i].Out != 0;
  return g.SavedCount + out + (g.CharactersTotal - g.CharactersReleased) >= g.CharactersNeeded;
}

namespace {

// 64-bit FNV-1a over bytes, eight at a time where it can.
class Hasher {
 public:
  void Bytes(const void* data, std::size_t n) {
    const auto* p = static_cast<const unsigned char*>(data);
    for (; n >= 8; n -= 8, p += 8) {
      uint64_t word;
      std::memcpy(&word, p, 8);
      Mix(word);
    }
    for (; n > 0; --n, ++p) Mix(*p);
  }
  void Value(int64_t v) { Mix(static_cast<uint64_t>(v)); }
  uint64_t Result() const { return h_ ^ (h_ >> 29); }

 private:
  void Mix(uint64_t v) {
    h_ ^= v;
    h_ *= 0x100000001B3ULL;
    h_ ^= h_ >> 32;
  }
  uint64_t h_ = 0xCBF29CE484222325ULL;
};

template <typename T, int N>
void HashTable(Hasher& h, const Table<T, N>& table) {
  h.Bytes(table.First(N), sizeof(T) * N);
}

}  // namespace

uint64_t StateHash(const Game& g) {
  Hasher h;
  const int rows = std::clamp<int>(g.GridHeight, 0, GridTable::kRows);
  h.Bytes(g.Grid.Cells(), sizeof(int16_t) * static_cast<std::size_t>(GridTable::kColumns * rows));
  if (g.CharactersTotal > 0)
    h.Bytes(g.Chars.First(g.CharactersTotal),
            sizeof(CharRecord) * static_cast<std::size_t>(g.CharactersTotal));
  HashTable(h, g.ToolStock);
  HashTable(h, g.TrapSprung);
  HashTable(h, g.EntranceActive);
  for (int64_t v : {int64_t{g.CharactersReleased}, int64_t{g.SavedCount},     int64_t{g.Leader},
                    int64_t{g.NextEntrance},       int64_t{g.ReleaseTimer},   int64_t{g.Blocking},
                    int64_t{g.Building},           int64_t{g.Bombing},        int64_t{g.JumpStage},
                    int64_t{g.Lasering},           int64_t{g.LaserHitX},      int64_t{g.LaserHitY},
                    int64_t{g.BombOwner},          int64_t{g.ClimbArmed},     int64_t{g.Climbing},
                    int64_t{g.Floating},           int64_t{g.Tool5Countdown}, int64_t{g.SlowToggle},
                    int64_t{g.TimerHalfTick},      int64_t{g.TimeLeft},       int64_t{g.ReplayTick},
                    int64_t{g.ReplayPlaying}})
    h.Value(v);
  return h.Result();
}

}  // namespace qb::analysis
