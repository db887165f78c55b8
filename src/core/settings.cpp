// The per-user settings: highest level per tier, the six options and the current tier.
#include "core/settings.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>

#include "core/quoted.h"

namespace qb {
namespace {

struct OptionSetting {
  Option option;
  const char* key;
  bool fallback;
};
constexpr OptionSetting kOptions[] = {
    {OptMusic, "Music", true},
    {OptSound, "Sound", true},
    {OptFastScrolling, "Scrolling", false},
    {OptSmartScrolling, "SmartScrolling", false},
    {OptReplay, "Replay", true},
    {OptShowChange, "Change", true},
};

std::string Trim(const std::string& s) {
  std::size_t a = 0, e = s.size();
  while (a < e && std::isspace(static_cast<unsigned char>(s[a]))) ++a;
  while (e > a && std::isspace(static_cast<unsigned char>(s[e - 1]))) --e;
  return s.substr(a, e - a);
}

// A decimal whole number. One too large for a long saturates (strtol's own result), so a huge
// highest level clamps to 20 instead of reading as text.
std::optional<long> ToNumber(const std::string& text) {
  const std::string t = Trim(text);
  if (t.empty()) return std::nullopt;
  char* end = nullptr;
  const long v = std::strtol(t.c_str(), &end, 10);
  if (end != t.c_str() + t.size()) return std::nullopt;
  return v;
}

// "True"/"False" in any case, or a number (non-zero is True).
std::optional<bool> ToBool(const std::string& text) {
  std::string t = Trim(text);
  std::transform(t.begin(), t.end(), t.begin(), [](unsigned char c) { return std::tolower(c); });
  if (t == "true") return true;
  if (t == "false") return false;
  if (const auto n = ToNumber(t)) return *n != 0;
  return std::nullopt;
}

std::string Where(const std::string& section, const std::string& key) {
  return section + "/" + key;
}

}  // namespace

std::vector<std::string> LoadSettings(Game& g, SettingsStore& store) {
  std::vector<std::string> notes;
  for (int tier = 0; tier < 4; ++tier) {
    const std::string key = std::to_string(tier);
    const auto stored = store.Get("HighestLevel", key);
    long level = 1;
    if (stored) {
      if (const auto n = ToNumber(*stored)) {
        level = std::clamp(*n, 1L, 20L);
        if (level != *n)
          notes.push_back(Where("HighestLevel", key) + " = " + Quoted(*stored) +
                          " is outside 1 to 20; using " + std::to_string(level));
      } else {
        notes.push_back(Where("HighestLevel", key) + " = " + Quoted(*stored) +
                        " is not a number; using 1");
      }
    }
    g.HighestLevel(tier) = static_cast<int16_t>(level);
  }
  for (const OptionSetting& o : kOptions) {
    bool value = o.fallback;
    if (const auto stored = store.Get("Options", o.key)) {
      if (const auto b = ToBool(*stored))
        value = *b;
      else
        notes.push_back(Where("Options", o.key) + " = " + Quoted(*stored) +
                        " is not True or False; using " + (o.fallback ? "True" : "False"));
    }
    g.ui.OptionsChecked(o.option) = value;
  }
  g.ui.StayPausedForTools = false;
  if (const auto stored = store.Get("Options", "StayPausedForTools")) {
    if (const auto b = ToBool(*stored))
      g.ui.StayPausedForTools = *b;
    else
      notes.push_back(Where("Options", "StayPausedForTools") + " = \"" + *stored +
                      "\" is not True or False; using False");
  }
  g.CurrentSkill = 0;
  if (const auto stored = store.Get("CurrentSkill", "Skill")) {
    const auto n = ToNumber(*stored);
    if (n && *n >= 0 && *n <= 3)
      g.CurrentSkill = static_cast<int32_t>(*n);
    else if (n && *n == 4)
      g.CurrentSkill = 4;  // the whole game was won; the chooser shows Expert
    else if (!Trim(*stored).empty())
      notes.push_back(Where("CurrentSkill", "Skill") + " = " + Quoted(*stored) +
                      " is not a tier 0 to 3; using 0");
  }
  return notes;
}

void SaveSettings(const Game& g, SettingsStore& store) {
  for (int tier = 0; tier < 4; ++tier)
    store.Set("HighestLevel", std::to_string(tier), std::to_string(g.HighestLevel(tier)));
  for (const OptionSetting& o : kOptions)
    store.Set("Options", o.key, g.ui.Option(o.option) ? "True" : "False");
  store.Set("Options", "StayPausedForTools", g.ui.StayPausedForTools ? "True" : "False");
  store.Set("CurrentSkill", "Skill", std::to_string(g.CurrentSkill));
}

}  // namespace qb
