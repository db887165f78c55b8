// Renders the voices of one effect into 16-bit samples and wraps them as a WAV file.
#pragma once

#include <cstdint>
#include <vector>

#include "effect_description.h"

namespace qb::sfx {

inline constexpr int kSampleRate = 22050;
// Every effect is scaled so that its loudest sample sits at this share of full scale.
inline constexpr double kTargetPeak = 0.85;

// Mixes the voices (all of one effect) into mono samples scaled to kTargetPeak. The noise is
// from a fixed seed, so the same description always gives the same bytes.
std::vector<int16_t> RenderEffect(const std::vector<EffectVoice>& voices);

// A RIFF/WAVE file: PCM, mono, kSampleRate, 16 bits.
std::vector<uint8_t> MakeWav(const std::vector<int16_t>& samples);

}  // namespace qb::sfx
