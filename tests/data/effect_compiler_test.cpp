// The sound effect compiler: its description reader and the synthesiser that balances effects.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "effect_description.h"
#include "synthesize.h"

namespace qb {
namespace {

TEST(EffectDescription, ReadsEveryKeyAndReportsEachBadLineWithItsNumber) {
  const auto d = sfx::ReadEffectDescription(
      "# comment line\n\n"
      "107 SOUND at=0.5 len=0.9 wave=triangle pitch=1500>140 noise=0.25 lowpass=800 "
      "env=0.01/0.2/0.6/0.3 tremolo=9 vibrato=7/0.3 vol=0.5  # trailing comment\n"
      "102 NOISE len=0.3\n"
      "103 SOUND wave=sine\n"
      "104 SOUND len=0.3 colour=red\n"
      "105 SOUND len=0.3 env=0.1/0.2/0.5\n"
      "106 SOUND len=0.3 env=0.1/0.2/0.5/0.1/9\n"
      "107 SOUND len=0.3 pitch=0>100\n"
      "108 SOUND len=abc\n"
      "x SOUND len=0.3\n");
  ASSERT_EQ(d.voices.size(), 1u);
  EXPECT_DOUBLE_EQ(d.voices[0].pitchTo, 140);
  EXPECT_DOUBLE_EQ(d.voices[0].vibratoDepth, 0.3);
  const std::vector<std::string> expected = {"line 4", "len=",  "colour",  "env",
                                             "env",    "pitch", "line 10", "line 11"};
  ASSERT_EQ(d.errors.size(), expected.size());
  for (std::size_t i = 0; i < expected.size(); ++i)
    EXPECT_NE(d.errors[i].find(expected[i]), std::string::npos) << d.errors[i];
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
