// A Markdown table that sums up levels, one row each.
#pragma once

#include <string>
#include <vector>

#include "core/level_file.h"

namespace qb::leveltext {

// The header and separator lines of the table.
std::string TableHeader();

// One row: tier, number, title, size, characters, needed, time, release interval, tool stock,
// and the elements used (square kinds present, entrances, traps, teleports).
std::string TableRow(const LevelData& d);

// "build 2, jump 1"; "none" when the stock is empty.
std::string StockSummary(const LevelData& d);

// "SoftWall, Water, ExitDoor; 1 entrance, 2 traps"; the kinds in kind order.
std::string ElementSummary(const LevelData& d);

}  // namespace qb::leveltext
