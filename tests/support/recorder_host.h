// A host that records what the rules ask of it: sounds, screens, messages, notes.
#pragma once

#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include "core/host.h"

namespace qb::test {

class RecorderHost : public Host {
 public:
  std::vector<int> sounds;  // the numbers of the sounds played
  std::vector<Screen> screens;
  std::vector<std::string> messages;
  std::vector<std::string> notes;  // lines for the error stream
  std::map<std::string, std::vector<uint8_t>> files;

  void PlaySound(std::string_view, int number) override { sounds.push_back(number); }
  void ShowScreen(Screen screen, const ScreenTexts&) override { screens.push_back(screen); }
  void ShowMessage(const std::string& text, const std::string& title) override {
    messages.push_back(title + ": " + text);
  }
  void SetMusicFileName(const std::string&) override {}
  void SendMusicCommand(MusicCommand) override {}
  int MusicMode() override { return 0; }
  FileRead ReadFile(const std::string& path) override {
    const auto it = files.find(path);
    if (it == files.end()) return {std::nullopt, "no such file"};
    return {it->second, {}};
  }
  void Note(const std::string& text) override { notes.push_back(text); }
  bool PlayedSound(int number) const { return std::ranges::count(sounds, number) > 0; }
  // Forgets what was recorded (the files stay), for a host that lives across many runs.
  void Clear() {
    sounds.clear();
    screens.clear();
    messages.clear();
    notes.clear();
  }
};

}  // namespace qb::test
