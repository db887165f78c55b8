// The analysis subcommands of quorbit-level; each returns the process exit status.
#pragma once

#include <iosfwd>
#include <memory>
#include <string>
#include <vector>

#include "core/game.h"
#include "file_host.h"

namespace qb::leveltext {

// A level loaded by the game's own loader into a game that never draws.
struct LoadedLevel {
  FileHost host;
  std::unique_ptr<Game> game;
};
// Nothing, with the reason on `err`, when the game refuses the file.
std::unique_ptr<LoadedLevel> LoadHeadless(const std::string& path, std::ostream& err);

// analyse LEVEL.lvl --replay SOLUTION [--json | --markdown]
int Analyse(const std::vector<std::string>& args, std::ostream& out, std::ostream& err);

// solve LEVEL.lvl [--max-presses K] [--seconds S]
int Solve(const std::vector<std::string>& args, std::ostream& out, std::ostream& err);

// limits LEVEL.lvl --replay SOLUTION | limits LEVEL.lvl... --solutions DIR [--search-states N]
int Limits(const std::vector<std::string>& args, std::ostream& out, std::ostream& err);

// render LEVEL.lvl -o LEVEL.png [--scale N]
int Render(const std::vector<std::string>& args, std::ostream& out, std::ostream& err);

}  // namespace qb::leveltext
