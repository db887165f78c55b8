// The built-in effects: every number the rules play is there as a sound, a 16-bit PCM WAV image,
// as loud as the others.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "audio/sound_bank.h"
#include "audio_env.h"

namespace qb {
namespace {

// Every effect is a 16-bit PCM wave; they are balanced by loudness (RMS within 4 dB of each
// other, so none drowns the others out) and none reaches full scale.
TEST(BuiltInEffects, EveryEffectIsA16BitWaveAsLoudAsTheOthersWithoutClipping) {
  double quietest = 0, loudest = -100;
  for (const auto& e : test::kEffects) {
    SCOPED_TRACE(std::string(e.type) + " " + std::to_string(e.number));
    const auto bytes = FindSound(e.type, e.number);
    ASSERT_FALSE(bytes.empty());
    const auto wave = test::ReadWave(bytes);
    ASSERT_TRUE(wave) << SDL_GetError();
    EXPECT_EQ(wave->format.format, AUDIO_S16LSB);
    EXPECT_EQ(wave->format.channels, 1);
    const double seconds = static_cast<double>(wave->samples.size()) / wave->format.freq;
    EXPECT_GT(seconds, 0.1);
    EXPECT_LT(seconds, 3.0);  // an effect, not a piece of music
    int peak = 0;
    double squares = 0;
    for (int16_t s : wave->samples) {
      peak = std::max(peak, std::abs(static_cast<int>(s)));
      squares += static_cast<double>(s) * s;
    }
    EXPECT_LT(peak, 32000);  // headroom left for the resampling to the mixer's rate
    const double rmsDb =
        20 * std::log10(std::sqrt(squares / static_cast<double>(wave->samples.size())) / 32768);
    quietest = std::min(quietest, rmsDb);
    loudest = std::max(loudest, rmsDb);
  }
  EXPECT_LE(loudest - quietest, 4.0) << "from " << quietest << " to " << loudest << " dB RMS";
}

}  // namespace
}  // namespace qb
