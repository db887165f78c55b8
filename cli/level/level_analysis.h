// The analysis subcommands of quorbit-level; each returns the process exit status.
#pragma once

#include <iosfwd>
#include <memory>
#include <string>
#include <vector>

#include "analysis/headless_level.h"

namespace qb::leveltext {

// The level file at `path` loaded by the game's own loader into a game that never draws;
// nothing, with the reason on `err`, when the game refuses the file.
std::unique_ptr<analysis::HeadlessLevel> LoadHeadless(const std::string& path, std::ostream& err);

// analyse LEVEL.lvl --replay SOLUTION [--json | --markdown]
int Analyse(const std::vector<std::string>& args, std::ostream& out, std::ostream& err);

// solve LEVEL.lvl [--max-presses K] [--seconds S]
int Solve(const std::vector<std::string>& args, std::ostream& out, std::ostream& err);

// render LEVEL.lvl -o LEVEL.png [--scale N]
int Render(const std::vector<std::string>& args, std::ostream& out, std::ostream& err);

}  // namespace qb::leveltext
