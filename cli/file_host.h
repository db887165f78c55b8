// A host for the command-line tools: reads real files, plays nothing, shows nothing.
#pragma once

#include <string>

#include "core/silent_host.h"

namespace qb {

class FileHost : public SilentHost {
 public:
  FileRead ReadFile(const std::string& path) override;
};

}  // namespace qb
