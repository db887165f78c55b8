// May a square be broken through (or passed by a running laser)?
#pragma once

#include <string_view>

#include "core/game.h"

namespace qb {

bool BashSafe(Game& g, int x, int y, std::string_view mode);

}  // namespace qb
