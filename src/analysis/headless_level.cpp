// A level loaded headless from the bytes of its file.
#include "analysis/headless_level.h"

#include "analysis/headless.h"
#include "level/loader.h"

namespace qb::analysis {

FileRead LevelBytesHost::ReadFile(const std::string& path) {
  if (path != name_) return {std::nullopt, "no such file"};
  return {bytes_, {}};
}

std::unique_ptr<HeadlessLevel> LoadHeadless(const std::string& name, std::vector<uint8_t> bytes,
                                            std::string& refusal) {
  auto level = std::make_unique<HeadlessLevel>(name, std::move(bytes));
  Game& g = level->game;
  MakeHeadless(g);
  g.LevelFile = name;
  if (const LoadOutcome load = LoadLevel(g, name); !load.Loaded()) {
    refusal = load.message;
    return nullptr;
  }
  return level;
}

}  // namespace qb::analysis
