// The player's record per level, kept in the settings store under "Records": the most saved,
// the fewest cycles, the fewest tools used (each the best of any win) and the date of the last
// win that improved one of them.
#pragma once

#include <optional>
#include <string>

#include "core/attempt_log.h"
#include "core/settings.h"

namespace qb {

struct LevelRecord {
  int bestSaved = 0;
  int fewestCycles = 0;
  int fewestTools = 0;
  std::string date;
};

// The record of a level (its file name without ".lvl"), or nothing when it was never won or
// the stored values are not numbers.
std::optional<LevelRecord> ReadRecord(SettingsStore& store, const std::string& level);
// Folds a won attempt into the level's record and stores it; returns the new record.
LevelRecord RecordWin(SettingsStore& store, const FinishedAttempt& won, const std::string& date);
// "89 saved, 1333 cycles, 12 tools, 2026-11-23"
std::string RecordText(const LevelRecord& r);
// The level's name as the records key it: the file name without its folder and ".lvl".
std::string RecordKey(const std::string& levelFile);

}  // namespace qb
