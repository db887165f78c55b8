// The text form of a level: parsing it into a LevelData and printing a LevelData as text.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/level_file.h"

namespace qb::leveltext {

// One error or warning about a text level. `line` counts from 1; 0 means the level as a whole.
struct Diagnostic {
  int line = 0;
  bool warning = false;
  std::string message;
};

struct ParsedLevel {
  LevelData data;
  std::vector<Diagnostic> diagnostics;
  bool ok() const;  // no errors (warnings allowed)
};

// Parses a UTF-8 level text. On errors `data` is incomplete and must not be written.
ParsedLevel ParseLevelText(std::string_view text);

// The level as text: header keys in a fixed order, tools in tool order, only the slots that are
// active or hold coordinates, then the grid.
std::string PrintLevelText(const LevelData& d);

// The level as the text form keeps it: every active flag becomes -1 (any non-zero value means
// active to the game), so two levels with the same meaning compare equal.
LevelData Normalized(const LevelData& d);

// Title bytes (one byte per character) as UTF-8 text.
std::string Latin1ToUtf8(const std::string& latin1);

// "file:12: error: ..." for a diagnostic about the file `name`.
std::string FormatDiagnostic(const std::string& name, const Diagnostic& d);

}  // namespace qb::leveltext
