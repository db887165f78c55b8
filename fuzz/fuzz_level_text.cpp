// libFuzzer entry for level texts: a broken promise stops the run with the offending input.
#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

#include "findings.h"
#include "input_checks.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
  const std::string problem =
      qb::fuzz::CheckLevelText(std::string_view(reinterpret_cast<const char*>(data), size));
  if (!problem.empty()) {
    std::fprintf(stderr, "%s\n", problem.c_str());
    qb::fuzz::Finding("level_text");
  }
  return 0;
}
