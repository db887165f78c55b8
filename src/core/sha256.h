// SHA-256 of a byte string, so a replay can say exactly which level bytes it was played on.
#pragma once

#include <string>
#include <string_view>

namespace qb {

// The digest as 64 lower-case hexadecimal digits.
std::string Sha256Hex(std::string_view bytes);

}  // namespace qb
