// Test helpers: choose SDL's audio driver for one test, the effects the rules play and how SDL
// reads them.
#pragma once

#include <SDL.h>

#include <cstdlib>
#include <optional>
#include <span>
#include <string>
#include <vector>

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

// Every effect the rules play: all SOUND resources from 101 to 114 but 103, and the CUSTOM jump.
struct Effect {
  const char* type;
  int number;
};
inline constexpr Effect kEffects[] = {
    {"SOUND", 101}, {"SOUND", 102}, {"SOUND", 104}, {"SOUND", 105}, {"SOUND", 106},
    {"SOUND", 107}, {"SOUND", 108}, {"SOUND", 109}, {"SOUND", 110}, {"SOUND", 111},
    {"SOUND", 112}, {"SOUND", 113}, {"SOUND", 114}, {"CUSTOM", 115}};

// An effect's image read as the mixer reads it, through SDL's WAV loader: its format and, for
// 16-bit images, its samples. Nothing when SDL cannot read it.
struct Wave {
  SDL_AudioSpec format{};
  std::vector<int16_t> samples;
};
inline std::optional<Wave> ReadWave(std::span<const uint8_t> bytes) {
  Wave wave;
  Uint8* buffer = nullptr;
  Uint32 length = 0;
  SDL_RWops* in = SDL_RWFromConstMem(bytes.data(), static_cast<int>(bytes.size()));
  if (!SDL_LoadWAV_RW(in, 1, &wave.format, &buffer, &length)) return std::nullopt;
  if (SDL_AUDIO_BITSIZE(wave.format.format) == 16)
    wave.samples.assign(reinterpret_cast<const int16_t*>(buffer),
                        reinterpret_cast<const int16_t*>(buffer + length));
  SDL_FreeWAV(buffer);
  return wave;
}

}  // namespace qb::test
