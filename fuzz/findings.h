// What a fuzz run holds the code to: readable messages, and how a broken promise is reported.
#pragma once

#include <string>

namespace qb::fuzz {

// A message about an input is one short line a person can read, whatever the input holds: no
// raw control byte (a terminal would act on it, a line feed would split it) and no flood of text.
inline std::string MessageProblem(const std::string& message) {
  constexpr std::size_t kLongest = 300;
  if (message.empty()) return "an empty message";
  if (message.size() > kLongest)
    return "a message of " + std::to_string(message.size()) + " bytes: " + message.substr(0, 80);
  for (const char c : message)
    if (static_cast<unsigned char>(c) < 0x20 || c == 0x7F)
      return "a message with the raw control byte " + std::to_string(static_cast<unsigned char>(c));
  return "";
}

// A broken promise of the code under test: libFuzzer records the input that caused it.
[[noreturn]] inline void Finding(const char* what) {
  __builtin_printf("fuzz finding: %s\n", what);
  __builtin_trap();
}

}  // namespace qb::fuzz
