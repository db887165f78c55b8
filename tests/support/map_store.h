// A settings store kept in memory, for tests of what the game reads and writes.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <utility>

#include "core/settings.h"

namespace qb::test {

class MapStore : public SettingsStore {
 public:
  std::map<std::pair<std::string, std::string>, std::string> values;
  std::optional<std::string> Get(const std::string& section, const std::string& key) override {
    const auto it = values.find({section, key});
    if (it == values.end()) return std::nullopt;
    return it->second;
  }
  void Set(const std::string& section, const std::string& key, const std::string& value) override {
    values[{section, key}] = value;
  }
};

}  // namespace qb::test
