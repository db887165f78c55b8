// Renders effect voices: oscillator with glide and vibrato, noise, low-pass, envelope, tremolo.
#include "synthesize.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace qb::sfx {
namespace {

constexpr double kTwoPi = 2 * std::numbers::pi;

// A small deterministic white-noise source in -1..1.
class Noise {
 public:
  double Next() {
    state_ ^= state_ << 13;
    state_ ^= state_ >> 7;
    state_ ^= state_ << 17;
    return static_cast<double>(state_ >> 11) / static_cast<double>(1ull << 52) - 1.0;
  }

 private:
  uint64_t state_ = 0x9E3779B97F4A7C15ull;
};

double Oscillator(Waveform wave, double phase, Noise& noise) {
  const double p = phase - std::floor(phase);  // position within one period, 0..1
  switch (wave) {
    case Waveform::Sine:
      return std::sin(kTwoPi * p);
    case Waveform::Square:
      return p < 0.5 ? 0.8 : -0.8;  // a little quieter: squares sound louder than sines
    case Waveform::Saw:
      return 2 * p - 1;
    case Waveform::Triangle:
      return p < 0.5 ? 4 * p - 1 : 3 - 4 * p;
    case Waveform::Noise:
      return noise.Next();
  }
  return 0;
}

double Envelope(const EffectVoice& v, double t) {
  double level = v.sustain;
  if (v.attack > 0 && t < v.attack) {
    level = t / v.attack;
  } else if (v.decay > 0 && t < v.attack + v.decay) {
    level = 1 - (1 - v.sustain) * (t - v.attack) / v.decay;
  }
  const double untilEnd = v.length - t;
  if (v.release > 0 && untilEnd < v.release) level *= std::max(0.0, untilEnd / v.release);
  return level;
}

void AddVoice(const EffectVoice& v, std::vector<double>& mix, Noise& noise) {
  const int first = static_cast<int>(std::lround(v.start * kSampleRate));
  const int count = static_cast<int>(std::lround(v.length * kSampleRate));
  const double lowpassGain = v.lowpass > 0 ? 1 - std::exp(-kTwoPi * v.lowpass / kSampleRate) : 1;
  double phase = 0, filtered = 0;
  for (int i = 0; i < count; ++i) {
    const double t = static_cast<double>(i) / kSampleRate;
    double frequency = v.pitchFrom * std::pow(v.pitchTo / v.pitchFrom, t / v.length);
    if (v.vibratoRate > 0)
      frequency *= std::pow(2.0, v.vibratoDepth * std::sin(kTwoPi * v.vibratoRate * t) / 12);
    phase += frequency / kSampleRate;
    double sample = Oscillator(v.wave, phase, noise);
    if (v.noise > 0) sample = (1 - v.noise) * sample + v.noise * noise.Next();
    filtered += lowpassGain * (sample - filtered);
    double level = Envelope(v, t) * v.volume;
    if (v.tremolo > 0) level *= 0.5 + 0.5 * std::cos(kTwoPi * v.tremolo * t);
    mix[static_cast<size_t>(first + i)] += filtered * level;
  }
}

void PutLittleEndian(std::vector<uint8_t>& out, uint32_t value, int bytes) {
  for (int i = 0; i < bytes; ++i) out.push_back(static_cast<uint8_t>(value >> (8 * i)));
}

}  // namespace

std::vector<int16_t> RenderEffect(const std::vector<EffectVoice>& voices) {
  size_t total = 0;
  for (const auto& v : voices)
    total = std::max(total, static_cast<size_t>(std::lround(v.start * kSampleRate) +
                                                std::lround(v.length * kSampleRate)));
  std::vector<double> mix(total, 0.0);
  Noise noise;
  for (const auto& v : voices) AddVoice(v, mix, noise);

  double peak = 0, squares = 0;
  for (double s : mix) {
    peak = std::max(peak, std::abs(s));
    squares += s * s;
  }
  const double rms = total > 0 ? std::sqrt(squares / static_cast<double>(total)) : 0;
  const double scale = peak > 0 ? std::min(kTargetRms / rms, kPeakCeiling / peak) : 0;
  std::vector<int16_t> samples(total);
  for (size_t i = 0; i < total; ++i)
    samples[i] = static_cast<int16_t>(std::lround(std::clamp(mix[i] * scale, -1.0, 1.0) * 32767));
  return samples;
}

std::vector<uint8_t> MakeWav(const std::vector<int16_t>& samples) {
  const uint32_t dataBytes = static_cast<uint32_t>(samples.size() * 2);
  std::vector<uint8_t> out;
  out.reserve(44 + dataBytes);
  auto tag = [&](const char* four) {
    for (int i = 0; i < 4; ++i) out.push_back(static_cast<uint8_t>(four[i]));
  };
  tag("RIFF");
  PutLittleEndian(out, 36 + dataBytes, 4);
  tag("WAVE");
  tag("fmt ");
  PutLittleEndian(out, 16, 4);               // size of the format chunk
  PutLittleEndian(out, 1, 2);                // PCM
  PutLittleEndian(out, 1, 2);                // mono
  PutLittleEndian(out, kSampleRate, 4);      // samples per second
  PutLittleEndian(out, kSampleRate * 2, 4);  // bytes per second
  PutLittleEndian(out, 2, 2);                // bytes per frame
  PutLittleEndian(out, 16, 2);               // bits per sample
  tag("data");
  PutLittleEndian(out, dataBytes, 4);
  for (int16_t s : samples) PutLittleEndian(out, static_cast<uint16_t>(s), 2);
  return out;
}

}  // namespace qb::sfx
