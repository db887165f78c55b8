// What the analysis subcommands of quorbit-level read: their options and a solution file.
#pragma once

#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

#include "analysis/headless.h"

namespace qb::leveltext {

// Takes "--name VALUE" out of the arguments; false when VALUE is missing.
bool TakeValue(std::vector<std::string>& args, const std::string& name, std::string& value);
bool TakeFlag(std::vector<std::string>& args, const std::string& name);
// A whole or decimal number in [low, high]; nothing otherwise.
std::optional<double> Number(const std::string& text, double low, double high);

// The presses of a replay file; nothing, with the reason on `err`, when it cannot be read.
std::optional<qb::analysis::Presses> ReadSolution(const std::string& path, std::ostream& err);

}  // namespace qb::leveltext
