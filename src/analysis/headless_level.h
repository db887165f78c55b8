// A level loaded by the game's own loader into a game that never draws nor sounds, from the
// bytes of its file held in memory.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "core/game.h"
#include "core/silent_host.h"

namespace qb::analysis {

// Plays nothing, shows nothing; reads only the one level file it holds.
class LevelBytesHost : public SilentHost {
 public:
  LevelBytesHost(std::string name, std::vector<uint8_t> bytes)
      : name_(std::move(name)), bytes_(std::move(bytes)) {}
  FileRead ReadFile(const std::string& path) override;

 private:
  std::string name_;
  std::vector<uint8_t> bytes_;
};

struct HeadlessLevel {
  LevelBytesHost host;
  Game game{host};
  HeadlessLevel(std::string name, std::vector<uint8_t> bytes)
      : host(std::move(name), std::move(bytes)) {}
  HeadlessLevel(const HeadlessLevel&) = delete;  // the game points at its own host
  HeadlessLevel& operator=(const HeadlessLevel&) = delete;
};

// The level file `name` with those bytes, loaded into a headless game (MakeHeadless); nothing,
// with the loader's message for the player in `refusal`, when the game refuses it.
std::unique_ptr<HeadlessLevel> LoadHeadless(const std::string& name, std::vector<uint8_t> bytes,
                                            std::string& refusal);

}  // namespace qb::analysis
