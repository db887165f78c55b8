// Build-time program: synthesises every effect of the description file, writes each as a WAV
// file, a C++ source that embeds the WAV bytes, and a listing of lengths and levels.
#include <cmath>
#include <cstdio>
#include <fstream>
#include <iostream>
#include <map>
#include <sstream>
#include <utility>

#include "effect_description.h"
#include "synthesize.h"

namespace {

using qb::sfx::EffectVoice;

bool WriteFile(const std::string& path, const std::string& bytes) {
  std::ofstream out(path, std::ios::binary);
  out << bytes;
  return static_cast<bool>(out);
}

std::string EmbeddedSource(const std::map<std::pair<std::string, int>, std::vector<uint8_t>>& wavs,
                           const std::string& sourceName) {
  std::ostringstream cpp;
  cpp << "// Generated from " << sourceName << " by quorbit-make-sounds: do not edit.\n"
      << "#include \"audio/embedded_sounds.h\"\n\nnamespace qb {\nnamespace {\n";
  for (const auto& [key, bytes] : wavs) {
    cpp << "const uint8_t k" << key.first << key.second << "[] = {";
    for (size_t i = 0; i < bytes.size(); ++i)
      cpp << (i % 24 == 0 ? "\n" : "") << static_cast<int>(bytes[i]) << ',';
    cpp << "\n};\n";
  }
  cpp << "}  // namespace\n\nconst EmbeddedSound kEmbeddedSounds[] = {\n";
  for (const auto& [key, bytes] : wavs)
    cpp << "    {\"" << key.first << "\", " << key.second << ", k" << key.first << key.second
        << ", sizeof k" << key.first << key.second << "},\n";
  cpp << "};\nconst size_t kEmbeddedSoundCount = " << wavs.size() << ";\n\n}  // namespace qb\n";
  return cpp.str();
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 5) {
    std::cerr << "usage: quorbit-make-sounds DESCRIPTION OUT.cpp WAV_FOLDER LISTING\n";
    return 2;
  }
  std::ifstream in(argv[1]);
  if (!in) {
    std::cerr << argv[1] << ": cannot read\n";
    return 1;
  }
  std::stringstream text;
  text << in.rdbuf();
  const auto description = qb::sfx::ReadEffectDescription(text.str());
  for (const auto& e : description.errors) std::cerr << argv[1] << ": " << e << '\n';
  if (!description.errors.empty() || description.voices.empty()) return 1;

  std::map<std::pair<std::string, int>, std::vector<EffectVoice>> effects;
  for (const auto& v : description.voices) effects[{v.type, v.number}].push_back(v);

  std::map<std::pair<std::string, int>, std::vector<uint8_t>> wavs;
  std::ostringstream listing;
  listing << "type   number  seconds  peak   rms    rms dB\n";
  for (const auto& [key, voices] : effects) {
    const auto samples = qb::sfx::RenderEffect(voices);
    double peak = 0, sumSquares = 0;
    for (int16_t s : samples) {
      peak = std::max(peak, std::abs(s / 32768.0));
      sumSquares += (s / 32768.0) * (s / 32768.0);
    }
    const double rms = std::sqrt(sumSquares / static_cast<double>(samples.size()));
    char line[96];
    std::snprintf(line, sizeof line, "%-6s %6d  %7.3f  %5.3f  %5.3f  %6.1f\n", key.first.c_str(),
                  key.second, static_cast<double>(samples.size()) / qb::sfx::kSampleRate, peak, rms,
                  20 * std::log10(rms));
    listing << line;
    // More than 2 dB short of the others (half the spread they may have): the peak ceiling
    // held it back.
    if (rms < qb::sfx::kTargetRms * 0.79) {
      char dB[16];
      std::snprintf(dB, sizeof dB, "%.1f", 20 * std::log10(rms));
      std::cerr << argv[1] << ": warning: effect " << key.first << ' ' << key.second
                << " is quieter than the others (" << dB
                << " dB RMS): soften its loudest moment or give it a fuller body\n";
    }
    wavs[key] = qb::sfx::MakeWav(samples);
    const std::string wavPath =
        std::string(argv[3]) + "/" + key.first + "_" + std::to_string(key.second) + ".wav";
    if (!WriteFile(wavPath, std::string(wavs[key].begin(), wavs[key].end()))) {
      std::cerr << wavPath << ": cannot write\n";
      return 1;
    }
  }
  if (!WriteFile(argv[2], EmbeddedSource(wavs, "data/sounds/effects.txt")) ||
      !WriteFile(argv[4], listing.str())) {
    std::cerr << "cannot write the outputs\n";
    return 1;
  }
  std::cout << listing.str();
  return 0;
}
