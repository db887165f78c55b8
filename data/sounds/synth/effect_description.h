// The voices that make up each sound effect, and the reader of the effect description file.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace qb::sfx {

enum class Waveform { Sine, Square, Saw, Triangle, Noise };

// One voice: a tone (or noise) with a pitch sweep and an envelope, placed at a start time inside
// its effect. An effect is the sum of all voices with its number.
struct EffectVoice {
  int number = 0;
  std::string type;   // resource type: "SOUND" or "CUSTOM"
  double start = 0;   // seconds from the start of the effect
  double length = 0;  // seconds
  Waveform wave = Waveform::Sine;
  double pitchFrom = 440;  // Hz at the start; the pitch glides exponentially to pitchTo
  double pitchTo = 440;
  double noise = 0;         // share of white noise mixed into the tone, 0..1
  double lowpass = 0;       // cut-off of a one-pole low-pass filter in Hz; 0 = no filter
  double attack = 0.005;    // envelope: seconds to full level,
  double decay = 0;         // seconds from full level down to the sustain level,
  double sustain = 1;       // the level held until the release,
  double release = 0.05;    // seconds of fade at the end of the voice
  double tremolo = 0;       // Hz of a full-depth amplitude wobble; 0 = none
  double vibratoRate = 0;   // Hz of a pitch wobble,
  double vibratoDepth = 0;  // its depth in semitones
  double volume = 1;        // weight of the voice in the mix
};

struct EffectDescription {
  std::vector<EffectVoice> voices;
  std::vector<std::string> errors;  // "line N: ..." for every line that could not be read
};

// Reads the description text: one voice per line, "NUMBER TYPE key=value ...", '#' starts a
// comment. See effects.txt for the keys.
EffectDescription ReadEffectDescription(std::string_view text);

}  // namespace qb::sfx
