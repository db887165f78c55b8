// The player's record per level in the settings store.
#include "core/records.h"

#include <algorithm>

namespace qb {
namespace {

std::optional<int> Number(SettingsStore& store, const std::string& key) {
  const auto text = store.Get("Records", key);
  if (!text) return std::nullopt;
  try {
    std::size_t used = 0;
    const int n = std::stoi(*text, &used);
    if (used == text->size() && n >= 0) return n;
  } catch (const std::exception&) {
  }
  return std::nullopt;
}

}  // namespace

std::string RecordKey(const std::string& levelFile) {
  std::string name = levelFile.substr(levelFile.find_last_of("/\\") + 1);
  if (name.size() > 4 && name.ends_with(".lvl")) name.resize(name.size() - 4);
  return name;
}

std::optional<LevelRecord> ReadRecord(SettingsStore& store, const std::string& level) {
  const auto saved = Number(store, level + "/BestSaved");
  const auto cycles = Number(store, level + "/FewestCycles");
  const auto tools = Number(store, level + "/FewestTools");
  if (!saved || !cycles || !tools) return std::nullopt;
  return LevelRecord{*saved, *cycles, *tools, store.Get("Records", level + "/Date").value_or("")};
}

LevelRecord RecordWin(SettingsStore& store, const FinishedAttempt& won, const std::string& date) {
  const std::string level = RecordKey(won.level);
  LevelRecord r{won.saved, won.cycles, won.tools, date};
  if (const auto old = ReadRecord(store, level)) {
    const bool better = won.saved > old->bestSaved || won.cycles < old->fewestCycles ||
                        won.tools < old->fewestTools;
    r.bestSaved = std::max(won.saved, old->bestSaved);
    r.fewestCycles = std::min(won.cycles, old->fewestCycles);
    r.fewestTools = std::min(won.tools, old->fewestTools);
    if (!better) r.date = old->date;
  }
  store.Set("Records", level + "/BestSaved", std::to_string(r.bestSaved));
  store.Set("Records", level + "/FewestCycles", std::to_string(r.fewestCycles));
  store.Set("Records", level + "/FewestTools", std::to_string(r.fewestTools));
  store.Set("Records", level + "/Date", r.date);
  return r;
}

std::string RecordText(const LevelRecord& r) {
  return std::to_string(r.bestSaved) + " saved, " + std::to_string(r.fewestCycles) + " cycles, " +
         std::to_string(r.fewestTools) + (r.fewestTools == 1 ? " tool, " : " tools, ") + r.date;
}

}  // namespace qb
