// Reading whole files and writing them so that a failed write leaves nothing behind.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace qb::leveltext {

std::optional<std::vector<uint8_t>> ReadWholeFile(const std::string& path);

// Writes to a temporary file beside `path` and renames it over `path`; on failure the
// temporary file is removed, `path` is untouched and `error` says why.
bool WriteFileAtomically(const std::string& path, const std::vector<uint8_t>& bytes,
                         std::string& error);

}  // namespace qb::leveltext
