// The subcommands of quorbit-level; each returns the process exit status.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace qb::leveltext {

// compile LEVEL.txt [-o LEVEL.lvl]: nothing is written when the text has errors. Without -o the
// output is the input's file name with .lvl, in the current folder.
int Compile(std::vector<std::string> args, std::ostream& out, std::ostream& err);

// decompile LEVEL.lvl [-o LEVEL.txt]: the text goes to `out` without -o.
int Decompile(std::vector<std::string> args, std::ostream& out, std::ostream& err);

// check FILE...: binary levels as the game reads them, .txt levels as compile reads them.
// 0 only when every file is fine.
int Check(const std::vector<std::string>& files, std::ostream& out);

// table FILE...: a Markdown table of the levels, sorted by tier and number.
int Table(const std::vector<std::string>& files, std::ostream& out, std::ostream& err);

}  // namespace qb::leveltext
