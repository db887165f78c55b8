// A host for fuzz runs: no sound, no screens, one file; messages are counted and dropped.
#pragma once

#include <optional>
#include <vector>

#include "core/host.h"

namespace qb::fuzz {

class QuietHost : public Host {
 public:
  int messages = 0;
  std::optional<std::vector<uint8_t>> file;  // what every ReadFile returns
  void PlaySound(std::string_view, int) override {}
  void ShowScreen(Screen, const ScreenTexts&) override {}
  void ShowMessage(const std::string&, const std::string&) override { ++messages; }
  void SetMusicFileName(const std::string&) override {}
  void SendMusicCommand(MusicCommand) override {}
  int MusicMode() override { return 0; }
  std::optional<std::vector<uint8_t>> ReadFile(const std::string&) override { return file; }
};

// A broken promise of the code under test: libFuzzer records the input that caused it.
[[noreturn]] inline void Finding(const char* what) {
  __builtin_printf("fuzz finding: %s\n", what);
  __builtin_trap();
}

}  // namespace qb::fuzz
