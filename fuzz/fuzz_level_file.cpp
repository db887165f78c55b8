// libFuzzer entry for binary level files: a broken promise stops the run with the offending input.
#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

#include "findings.h"
#include "input_checks.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
  const std::string problem = qb::fuzz::CheckLevelFile(std::vector<uint8_t>(data, data + size));
  if (!problem.empty()) {
    std::fprintf(stderr, "%s\n", problem.c_str());
    qb::fuzz::Finding("level_file");
  }
  return 0;
}
