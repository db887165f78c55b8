// Reads the effect description file into voices, reporting every bad line.
#include "effect_description.h"

#include <charconv>
#include <sstream>

namespace qb::sfx {
namespace {

bool ParseNumber(std::string_view text, double& out) {
  if (text.empty()) return false;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), out);
  return result.ec == std::errc() && result.ptr == text.data() + text.size();
}

bool ParseWave(std::string_view text, Waveform& out) {
  static const struct {
    const char* name;
    Waveform wave;
  } kWaves[] = {{"sine", Waveform::Sine},
                {"square", Waveform::Square},
                {"saw", Waveform::Saw},
                {"triangle", Waveform::Triangle},
                {"noise", Waveform::Noise}};
  for (const auto& w : kWaves)
    if (text == w.name) {
      out = w.wave;
      return true;
    }
  return false;
}

// Splits "a>b" (a glide) or "a" (a steady value) into two numbers.
bool ParseRange(std::string_view text, char separator, double& from, double& to) {
  const auto cut = text.find(separator);
  if (cut == std::string_view::npos) {
    if (!ParseNumber(text, from)) return false;
    to = from;
    return true;
  }
  return ParseNumber(text.substr(0, cut), from) && ParseNumber(text.substr(cut + 1), to);
}

// Applies one key=value pair; returns an error text or an empty string.
std::string ApplyKey(EffectVoice& v, std::string_view key, std::string_view value) {
  double number = 0;
  auto plain = [&](double& field, double low, double high) -> std::string {
    if (!ParseNumber(value, number)) return "bad number '" + std::string(value) + "'";
    if (number < low || number > high) return std::string(key) + " out of range";
    field = number;
    return {};
  };
  if (key == "at") return plain(v.start, 0, 10);
  if (key == "len") return plain(v.length, 0.001, 10);
  if (key == "noise") return plain(v.noise, 0, 1);
  if (key == "lowpass") return plain(v.lowpass, 0, 20000);
  if (key == "tremolo") return plain(v.tremolo, 0, 1000);
  if (key == "vol") return plain(v.volume, 0, 4);
  if (key == "wave")
    return ParseWave(value, v.wave) ? std::string() : "unknown wave '" + std::string(value) + "'";
  if (key == "pitch") {
    if (!ParseRange(value, '>', v.pitchFrom, v.pitchTo) || v.pitchFrom <= 0 || v.pitchTo <= 0)
      return "bad pitch '" + std::string(value) + "' (want HZ or HZ>HZ)";
    return {};
  }
  if (key == "vibrato") {
    if (!ParseRange(value, '/', v.vibratoRate, v.vibratoDepth))
      return "bad vibrato '" + std::string(value) + "' (want RATE/SEMITONES)";
    return {};
  }
  if (key == "env") {
    double parts[4];
    std::string_view rest = value;
    for (int i = 0; i < 4; ++i) {
      const auto cut = rest.find('/');
      const auto piece = rest.substr(0, cut);
      if (!ParseNumber(piece, parts[i]) || parts[i] < 0 || (i < 3) == (cut == rest.npos))
        return "bad env '" + std::string(value) + "' (want ATTACK/DECAY/SUSTAIN/RELEASE)";
      rest = cut == rest.npos ? std::string_view() : rest.substr(cut + 1);
    }
    if (parts[2] > 1) return "env sustain above 1";
    v.attack = parts[0];
    v.decay = parts[1];
    v.sustain = parts[2];
    v.release = parts[3];
    return {};
  }
  return "unknown key '" + std::string(key) + "'";
}

}  // namespace

EffectDescription ReadEffectDescription(std::string_view text) {
  EffectDescription out;
  std::istringstream lines{std::string(text)};
  std::string line;
  for (int lineNumber = 1; std::getline(lines, line); ++lineNumber) {
    if (const auto hash = line.find('#'); hash != std::string::npos) line.erase(hash);
    std::istringstream words(line);
    std::string numberText, type, word;
    if (!(words >> numberText)) continue;  // blank or comment line
    auto fail = [&](const std::string& why) {
      out.errors.push_back("line " + std::to_string(lineNumber) + ": " + why);
    };
    EffectVoice v;
    double number = 0;
    if (!ParseNumber(numberText, number) || number < 1 || number > 32767 ||
        number != static_cast<int>(number)) {
      fail("bad effect number '" + numberText + "'");
      continue;
    }
    v.number = static_cast<int>(number);
    if (!(words >> type) || (type != "SOUND" && type != "CUSTOM")) {
      fail("type must be SOUND or CUSTOM");
      continue;
    }
    v.type = type;
    bool ok = true;
    while (ok && words >> word) {
      const auto eq = word.find('=');
      const std::string error = eq == std::string::npos
                                    ? "expected key=value, got '" + word + "'"
                                    : ApplyKey(v, std::string_view(word).substr(0, eq),
                                               std::string_view(word).substr(eq + 1));
      if (!error.empty()) {
        fail(error);
        ok = false;
      }
    }
    if (!ok) continue;
    if (v.length <= 0) {
      fail("len= is required");
      continue;
    }
    out.voices.push_back(v);
  }
  return out;
}

}  // namespace qb::sfx
