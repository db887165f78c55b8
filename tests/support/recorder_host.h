// A host that records what the rules ask of it: sounds, screens, messages, music commands.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "core/host.h"

namespace qb::test {

class RecorderHost : public Host {
 public:
  struct Sound {
    std::string type;
    int number;
  };
  std::vector<Sound> sounds;
  std::vector<Screen> screens;
  std::vector<ScreenTexts> screenTexts;
  std::vector<std::string> messages;
  std::vector<std::string> notes;  // lines for the error stream
  std::vector<std::string> music;  // "Open planet9.mid"-like log of device commands
  std::map<std::string, std::vector<uint8_t>> files;
  int musicMode = 0;
  std::string musicFile;

  void PlaySound(std::string_view type, int number) override {
    sounds.push_back({std::string(type), number});
  }
  void ShowScreen(Screen screen, const ScreenTexts& texts) override {
    screens.push_back(screen);
    screenTexts.push_back(texts);
  }
  void ShowMessage(const std::string& text, const std::string& title) override {
    messages.push_back(title + ": " + text);
  }
  void SetMusicFileName(const std::string& path) override { musicFile = path; }
  void SendMusicCommand(MusicCommand command) override {
    static const char* const kNames[] = {"Open", "Play", "Stop", "Close"};
    music.push_back(kNames[static_cast<int>(command)]);
  }
  int MusicMode() override { return musicMode; }
  FileRead ReadFile(const std::string& path) override {
    const auto it = files.find(path);
    if (it == files.end()) return {std::nullopt, "no such file"};
    return {it->second, {}};
  }
  void Note(const std::string& text) override { notes.push_back(text); }
  // Forgets everything recorded, so a host that lives through many runs stays small.
  void Clear() {
    sounds.clear();
    screens.clear();
    screenTexts.clear();
    messages.clear();
    notes.clear();
    music.clear();
  }
  bool PlayedSound(int number) const {
    for (const auto& s : sounds)
      if (s.number == number) return true;
    return false;
  }
};

}  // namespace qb::test
