// The per-user settings: highest level per tier, the six options and the current tier.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/game.h"

namespace qb {

// A key-value store addressed by section and key (QSettings in the game, a map in tests).
class SettingsStore {
 public:
  virtual ~SettingsStore() = default;
  virtual std::optional<std::string> Get(const std::string& section, const std::string& key) = 0;
  virtual void Set(const std::string& section, const std::string& key,
                   const std::string& value) = 0;
};

// Reads every setting. A value that is not what the setting expects falls back to its default
// and adds a note; a highest level outside 1..20 is clamped into range.
std::vector<std::string> LoadSettings(Game& g, SettingsStore& store);
void SaveSettings(const Game& g, SettingsStore& store);

}  // namespace qb
