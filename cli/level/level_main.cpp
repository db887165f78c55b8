// quorbit-level: turns level texts into level files and back, checks and tabulates levels,
// analyses a level with its solution, searches for wins and draws a level's picture.
#include <iostream>
#include <string>
#include <vector>

#include "level_analysis.h"
#include "level_commands.h"

namespace {

int Usage(std::ostream& s, int status) {
  s << "usage: quorbit-level compile LEVEL.txt [-o LEVEL.lvl]\n"
       "       quorbit-level decompile LEVEL.lvl [-o LEVEL.txt]\n"
       "       quorbit-level check FILE...      (.lvl as the game reads it, .txt as compile does)\n"
       "       quorbit-level table FILE...      (a Markdown table of the levels)\n"
       "       quorbit-level analyse LEVEL.lvl --replay SOLUTION [--json | --markdown]\n"
       "       quorbit-level solve LEVEL.lvl [--max-presses K] [--seconds S]\n"
       "       quorbit-level limits LEVEL.lvl --replay SOLUTION   (the limits of the level's "
       "tier)\n"
       "       quorbit-level limits LEVEL.lvl... --solutions DIR\n"
       "       quorbit-level render LEVEL.lvl -o LEVEL.png [--scale N]\n";
  return status;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2) return Usage(std::cerr, 2);
  const std::string command = argv[1];
  const std::vector<std::string> args(argv + 2, argv + argc);
  using namespace qb::leveltext;
  if (command == "compile") return Compile(args, std::cout, std::cerr);
  if (command == "decompile") return Decompile(args, std::cout, std::cerr);
  if (command == "check") return Check(args, std::cout);
  if (command == "table") return Table(args, std::cout, std::cerr);
  if (command == "analyse") return Analyse(args, std::cout, std::cerr);
  if (command == "solve") return Solve(args, std::cout, std::cerr);
  if (command == "limits") return Limits(args, std::cout, std::cerr);
#ifdef QUORBIT_LEVEL_RENDER
  if (command == "render") return Render(args, std::cout, std::cerr);
#endif
  if (command == "--help" || command == "-h" || command == "help") return Usage(std::cout, 0);
  std::cerr << "quorbit-level: unknown command \"" << command << "\"\n";
  return Usage(std::cerr, 2);
}
