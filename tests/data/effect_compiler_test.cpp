// The sound effect compiler's description reader. (The balance of the effects it makes is
// measured on the shipped effects by the audio tests.)
#include <gtest/gtest.h>

#include "effect_description.h"

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
      "107 SOUND len=0.3 pitch=0>100\n"
      "x SOUND len=0.3\n");
  ASSERT_EQ(d.voices.size(), 1u);
  EXPECT_DOUBLE_EQ(d.voices[0].pitchTo, 140);
  EXPECT_DOUBLE_EQ(d.voices[0].vibratoDepth, 0.3);
  const std::vector<std::string> expected = {"line 4", "len=", "colour", "env", "pitch", "line 9"};
  ASSERT_EQ(d.errors.size(), expected.size());
  for (std::size_t i = 0; i < expected.size(); ++i)
    EXPECT_NE(d.errors[i].find(expected[i]), std::string::npos) << d.errors[i];
}

}  // namespace
}  // namespace qb
