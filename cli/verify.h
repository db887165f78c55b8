// quorbit-sim --verify: plays every replay of a folder against its level, one line each.
#pragma once

#include <iosfwd>
#include <string>

namespace qb {

// Plays each "*.replay" in replaysDir (in name order) against the level its header names, or
// else the level of the same name, in levelsDir. Prints one line per replay to `out`; returns
// true when every replay wins (and there is at least one).
bool VerifyReplays(const std::string& levelsDir, const std::string& replaysDir, std::ostream& out);

}  // namespace qb
