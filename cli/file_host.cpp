// A host for the command-line tools: reads real files, plays nothing, shows nothing.
#include "file_host.h"

#include "core/level_file.h"

namespace qb {

FileRead FileHost::ReadFile(const std::string& path) {
  if (!filesOpen) return {std::nullopt, "the run ends with this level"};
  return ReadSmallFile(path, kMaxLevelFileBytes);
}

}  // namespace qb
