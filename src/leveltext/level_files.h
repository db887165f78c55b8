// Writing files so that a failed write leaves nothing behind.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace qb::leveltext {

// Writes to a temporary file beside `path` and renames it over `path`; on failure the
// temporary file is removed, `path` is untouched and `error` says why.
bool WriteFileAtomically(const std::string& path, const std::vector<uint8_t>& bytes,
                         std::string& error);

}  // namespace qb::leveltext
