// A host for fuzz runs: no sound, no screens, one file; messages are checked and dropped.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/host.h"

namespace qb::fuzz {

// A message about an input is one short line a person can read, whatever the input holds: no
// raw control byte (a terminal would act on it, a line feed would split it) and no flood of text.
inline std::string MessageProblem(const std::string& message) {
  constexpr std::size_t kLongest = 300;
  if (message.empty()) return "an empty message";
  if (message.size() > kLongest)
    return "a message of " + std::to_string(message.size()) + " bytes: " + message.substr(0, 80);
  for (const char c : message)
    if (static_cast<unsigned char>(c) < 0x20 || c == 0x7F)
      return "a message with the raw control byte " + std::to_string(static_cast<unsigned char>(c));
  return "";
}

class QuietHost : public Host {
 public:
  std::string badMessage;                    // the first message that broke MessageProblem's rules
  std::optional<std::vector<uint8_t>> file;  // what every ReadFile returns
  void PlaySound(std::string_view, int) override {}
  void ShowScreen(Screen, const ScreenTexts&) override {}
  void ShowMessage(const std::string& text, const std::string&) override { Said(text); }
  void Note(const std::string& text) override { Said(text); }
  void SetMusicFileName(const std::string&) override {}
  void SendMusicCommand(MusicCommand) override {}
  int MusicMode() override { return 0; }
  FileRead ReadFile(const std::string&) override { return {file, file ? "" : "no file"}; }

 private:
  void Said(const std::string& text) {
    if (badMessage.empty()) badMessage = MessageProblem(text);
  }
};

// A broken promise of the code under test: libFuzzer records the input that caused it.
[[noreturn]] inline void Finding(const char* what) {
  __builtin_printf("fuzz finding: %s\n", what);
  __builtin_trap();
}

}  // namespace qb::fuzz
