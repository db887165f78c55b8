// RIFF/WAVE reader for the tests: walks the chunks and checks their sizes against the image.
#include "riff_wave.h"

#include <cstring>

namespace qb::test {
namespace {

uint32_t Little(std::span<const uint8_t> b, size_t at, int count) {
  uint32_t value = 0;
  for (int i = count - 1; i >= 0; --i) value = (value << 8) | b[at + static_cast<size_t>(i)];
  return value;
}

bool TagIs(std::span<const uint8_t> b, size_t at, const char* tag) {
  return at + 4 <= b.size() && std::memcmp(b.data() + at, tag, 4) == 0;
}

}  // namespace

std::optional<WaveImage> ReadWave(std::span<const uint8_t> bytes, std::string* why) {
  auto fail = [&](const char* reason) -> std::optional<WaveImage> {
    if (why) *why = reason;
    return std::nullopt;
  };
  if (bytes.size() < 12 || !TagIs(bytes, 0, "RIFF") || !TagIs(bytes, 8, "WAVE"))
    return fail("no RIFF/WAVE header");
  if (Little(bytes, 4, 4) + 8 != bytes.size()) return fail("RIFF size does not match the image");
  WaveImage image;
  bool haveFormat = false, haveData = false;
  for (size_t at = 12; at + 8 <= bytes.size();) {
    const uint32_t size = Little(bytes, at + 4, 4);
    if (at + 8 + size > bytes.size()) return fail("a chunk runs past the end");
    if (TagIs(bytes, at, "fmt ")) {
      if (size < 16) return fail("short format chunk");
      image.format = static_cast<int>(Little(bytes, at + 8, 2));
      image.channels = static_cast<int>(Little(bytes, at + 10, 2));
      image.sampleRate = static_cast<int>(Little(bytes, at + 12, 4));
      const uint32_t byteRate = Little(bytes, at + 16, 4);
      const uint32_t blockAlign = Little(bytes, at + 20, 2);
      image.bitsPerSample = static_cast<int>(Little(bytes, at + 22, 2));
      if (blockAlign != static_cast<uint32_t>(image.channels * image.bitsPerSample / 8) ||
          byteRate != blockAlign * static_cast<uint32_t>(image.sampleRate))
        return fail("inconsistent format chunk");
      haveFormat = true;
    } else if (TagIs(bytes, at, "data")) {
      if (!haveFormat) return fail("data before format");
      if (image.format == 1 && image.bitsPerSample == 16)
        for (size_t i = 0; i + 1 < size; i += 2)
          image.samples.push_back(static_cast<int16_t>(Little(bytes, at + 8 + i, 2)));
      haveData = true;
    }
    at += 8 + size + (size & 1);
  }
  if (!haveFormat || !haveData) return fail("missing format or data chunk");
  return image;
}

}  // namespace qb::test
