// The built-in effects: every number the rules play is there as a sound, 16-bit PCM WAV image;
// and the description reader and synthesiser they are made with.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "audio/sound_bank.h"
#include "effect_description.h"
#include "riff_wave.h"
#include "synthesize.h"

namespace qb {
namespace {

struct Wanted {
  const char* type;
  int number;
};
constexpr Wanted kEffects[] = {{"SOUND", 101}, {"SOUND", 102}, {"SOUND", 104}, {"SOUND", 105},
                               {"SOUND", 106}, {"SOUND", 107}, {"SOUND", 108}, {"SOUND", 109},
                               {"SOUND", 110}, {"SOUND", 111}, {"SOUND", 112}, {"SOUND", 113},
                               {"SOUND", 114}, {"CUSTOM", 115}};

// Every effect is a 16-bit PCM wave; they are balanced by loudness (RMS within 4 dB of each
// other, so none drowns the others out) and none reaches full scale.
TEST(BuiltInEffects, EveryEffectIsA16BitWaveAsLoudAsTheOthersWithoutClipping) {
  double quietest = 0, loudest = -100;
  for (const auto& e : kEffects) {
    SCOPED_TRACE(std::string(e.type) + " " + std::to_string(e.number));
    const auto bytes = FindSound(e.type, e.number);
    ASSERT_FALSE(bytes.empty());
    std::string why;
    const auto wave = test::ReadWave(bytes, &why);
    ASSERT_TRUE(wave) << why;
    EXPECT_EQ(wave->format, 1);
    EXPECT_EQ(wave->bitsPerSample, 16);
    EXPECT_EQ(wave->channels, 1);
    const double seconds = static_cast<double>(wave->samples.size()) / wave->sampleRate;
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

TEST(BuiltInEffects, ThereIsNo103AndTheTypeMustMatch) {
  EXPECT_TRUE(FindSound("SOUND", 103).empty());
  EXPECT_TRUE(FindSound("CUSTOM", 103).empty());
  EXPECT_TRUE(FindSound("SOUND", 115).empty());  // the jump is a CUSTOM resource
  EXPECT_TRUE(FindSound("CUSTOM", 101).empty());
  EXPECT_TRUE(FindSound("sound", 101).empty());
  EXPECT_TRUE(FindSound("SOUND", 0).empty());
  EXPECT_TRUE(FindSound("SOUND", 116).empty());
}

TEST(EffectDescription, ReadsEveryKey) {
  const auto d = sfx::ReadEffectDescription(
      "# comment line\n\n"
      "107 SOUND at=0.5 len=0.9 wave=triangle pitch=1500>140 noise=0.25 lowpass=800 "
      "env=0.01/0.2/0.6/0.3 tremolo=9 vibrato=7/0.3 vol=0.5  # trailing comment\n"
      "115 CUSTOM len=0.2\n");
  ASSERT_TRUE(d.errors.empty()) << d.errors.front();
  ASSERT_EQ(d.voices.size(), 2u);
  const auto& v = d.voices[0];
  EXPECT_EQ(v.number, 107);
  EXPECT_EQ(v.type, "SOUND");
  EXPECT_DOUBLE_EQ(v.start, 0.5);
  EXPECT_DOUBLE_EQ(v.length, 0.9);
  EXPECT_EQ(v.wave, sfx::Waveform::Triangle);
  EXPECT_DOUBLE_EQ(v.pitchFrom, 1500);
  EXPECT_DOUBLE_EQ(v.pitchTo, 140);
  EXPECT_DOUBLE_EQ(v.noise, 0.25);
  EXPECT_DOUBLE_EQ(v.lowpass, 800);
  EXPECT_DOUBLE_EQ(v.attack, 0.01);
  EXPECT_DOUBLE_EQ(v.decay, 0.2);
  EXPECT_DOUBLE_EQ(v.sustain, 0.6);
  EXPECT_DOUBLE_EQ(v.release, 0.3);
  EXPECT_DOUBLE_EQ(v.tremolo, 9);
  EXPECT_DOUBLE_EQ(v.vibratoRate, 7);
  EXPECT_DOUBLE_EQ(v.vibratoDepth, 0.3);
  EXPECT_DOUBLE_EQ(v.volume, 0.5);
  EXPECT_EQ(d.voices[1].type, "CUSTOM");
  EXPECT_DOUBLE_EQ(d.voices[1].pitchFrom, d.voices[1].pitchTo);  // a steady default pitch
}

TEST(EffectDescription, ReportsEachBadLineWithItsNumber) {
  const auto d = sfx::ReadEffectDescription(
      "101 SOUND len=0.3\n"
      "102 NOISE len=0.3\n"
      "103 SOUND wave=sine\n"
      "104 SOUND len=0.3 colour=red\n"
      "105 SOUND len=0.3 env=0.1/0.2/0.5\n"
      "106 SOUND len=0.3 env=0.1/0.2/0.5/0.1/9\n"
      "107 SOUND len=0.3 pitch=0>100\n"
      "108 SOUND len=abc\n"
      "x SOUND len=0.3\n");
  ASSERT_EQ(d.voices.size(), 1u);
  ASSERT_EQ(d.errors.size(), 8u);
  EXPECT_NE(d.errors[0].find("line 2"), std::string::npos);
  EXPECT_NE(d.errors[1].find("len="), std::string::npos);
  EXPECT_NE(d.errors[2].find("colour"), std::string::npos);
  EXPECT_NE(d.errors[3].find("env"), std::string::npos);
  EXPECT_NE(d.errors[4].find("env"), std::string::npos);
  EXPECT_NE(d.errors[5].find("pitch"), std::string::npos);
  EXPECT_NE(d.errors[7].find("line 9"), std::string::npos);
}

TEST(EffectSynthesis, PlacesVoicesInTimeAndBalancesByLoudnessUnderThePeakCeiling) {
  const auto d = sfx::ReadEffectDescription(
      "1 SOUND at=0.5 len=0.5 wave=square pitch=440 env=0/0/1/0\n"
      "1 SOUND len=0.25 wave=sine pitch=880 vol=0.1 env=0/0/1/0\n"
      "2 SOUND len=0.01 wave=square pitch=440 env=0/0/1/0\n"
      "2 SOUND len=1 wave=sine pitch=440 vol=0.05 env=0/0/1/0\n");
  ASSERT_TRUE(d.errors.empty());
  const std::vector<sfx::EffectVoice> steady(d.voices.begin(), d.voices.begin() + 2);
  const auto samples = sfx::RenderEffect(steady);
  ASSERT_EQ(samples.size(), static_cast<size_t>(sfx::kSampleRate));  // ends at 0.5 + 0.5 s
  auto level = [](const std::vector<int16_t>& s, double from, double to, bool peak) {
    double result = 0;
    const auto first = static_cast<size_t>(from * sfx::kSampleRate);
    const auto end = static_cast<size_t>(to * sfx::kSampleRate);
    for (size_t i = first; i < end; ++i)
      result = peak ? std::max(result, std::abs(s[i] / 32767.0))
                    : result + s[i] / 32767.0 * s[i] / 32767.0;
    return peak ? result : std::sqrt(result / static_cast<double>(end - first));
  };
  // A steady effect reaches the common loudness with room to spare below the ceiling.
  EXPECT_NEAR(level(samples, 0, 1, false), sfx::kTargetRms, 0.002);
  EXPECT_LT(level(samples, 0, 1, true), sfx::kPeakCeiling);
  EXPECT_GT(level(samples, 0, 0.25, true), 0);  // the quiet voice
  EXPECT_LT(level(samples, 0, 0.25, true), level(samples, 0.5, 1.0, true) / 4);
  EXPECT_EQ(level(samples, 0.26, 0.49, true), 0);  // nothing sounds between the two voices
  EXPECT_EQ(sfx::RenderEffect(steady), samples);   // the same description, the same bytes
  // A click over a faint hum would need far more than full scale to be as loud: the ceiling
  // holds its peak instead.
  const auto click = sfx::RenderEffect({d.voices[2], d.voices[3]});
  EXPECT_NEAR(level(click, 0, 1, true), sfx::kPeakCeiling, 0.001);
  EXPECT_LT(level(click, 0, 1, false), sfx::kTargetRms / 2);
}

}  // namespace
}  // namespace qb
