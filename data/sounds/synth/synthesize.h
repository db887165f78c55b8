// Renders the voices of one effect into 16-bit samples and wraps them as a WAV file.
#pragma once

#include <cstdint>
#include <vector>

#include "effect_description.h"

namespace qb::sfx {

inline constexpr int kSampleRate = 22050;
// Effects are balanced by loudness: each is scaled to this RMS level (-12 dB of full scale)...
inline constexpr double kTargetRms = 0.25;
// ...unless that would lift its loudest sample above this ceiling (-1 dB); then the peak
// decides and the effect stays quieter. A sharp attack over a short, quiet body is what makes an
// effect fall short: a fuller body or a softer attack brings it up.
inline constexpr double kPeakCeiling = 0.89;

// Mixes the voices (all of one effect) into mono samples at kTargetRms, or at kPeakCeiling when
// the peak comes first. The noise is from a fixed seed, so the same description always gives the
// same bytes.
std::vector<int16_t> RenderEffect(const std::vector<EffectVoice>& voices);

// A RIFF/WAVE file: PCM, mono, kSampleRate, 16 bits.
std::vector<uint8_t> MakeWav(const std::vector<int16_t>& samples);

}  // namespace qb::sfx
