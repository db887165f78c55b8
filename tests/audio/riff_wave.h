// A small, independent reader of RIFF/WAVE images for checking the built-in effects.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace qb::test {

struct WaveImage {
  int format = 0;  // 1 = PCM
  int channels = 0;
  int sampleRate = 0;
  int bitsPerSample = 0;
  std::vector<int16_t> samples;  // only filled for 16-bit PCM
};

// Reads the chunks of a RIFF/WAVE image; nothing (and a reason) when the header is malformed.
std::optional<WaveImage> ReadWave(std::span<const uint8_t> bytes, std::string* why = nullptr);

}  // namespace qb::test
