// A host for the command-line tools: reads real files, plays nothing, shows nothing.
#include "file_host.h"

#include "core/level_file.h"

namespace qb {

FileRead FileHost::ReadFile(const std::string& path) {
  return ReadSmallFile(path, kMaxLevelFileBytes);
}

}  // namespace qb
