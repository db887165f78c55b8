// Test helpers: choose SDL's audio driver for one test, and count the lines a log received.
#pragma once

#include <cstdlib>
#include <sstream>
#include <string>

namespace qb::test {

// Sets SDL environment variables for the life of the object; SDL reads them when the audio
// subsystem starts, so every Audio opened meanwhile uses them.
class AudioDriver {
 public:
  explicit AudioDriver(const std::string& driver) { Set("SDL_AUDIODRIVER", driver); }
  ~AudioDriver() {
    unsetenv("SDL_AUDIODRIVER");
    unsetenv("SDL_DISKAUDIOFILE");
    unsetenv("SDL_DISKAUDIODELAY");
  }
  static void Set(const char* name, const std::string& value) { setenv(name, value.c_str(), 1); }
};

inline int LineCount(const std::ostringstream& log) {
  int lines = 0;
  for (char c : log.str()) lines += c == '\n';
  return lines;
}

}  // namespace qb::test
