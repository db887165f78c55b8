// Lists the parts of two games that differ: state, control model and pictures.
#pragma once

#include <string>
#include <vector>

#include "core/game.h"

namespace qb::test {

// Names of every field that differs between a and b; empty when the games are the same.
std::vector<std::string> GameDifferences(const Game& a, const Game& b);

}  // namespace qb::test
