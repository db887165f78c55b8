// A host for the command-line tools: reads real files, plays nothing, shows nothing.
#pragma once

#include <functional>
#include <string>

#include "core/host.h"

namespace qb {

class FileHost : public Host {
 public:
  // Called for every modal screen and message; the game goes on when it returns.
  std::function<void(Screen)> onScreen;
  std::function<void(const std::string&)> onMessage;
  std::function<void(const std::string&)> onNote;
  bool filesOpen = true;  // when false, every file reads as missing

  void PlaySound(std::string_view, int) override {}
  void ShowScreen(Screen screen, const ScreenTexts&) override {
    if (onScreen) onScreen(screen);
  }
  void ShowMessage(const std::string& text, const std::string&) override {
    if (onMessage) onMessage(text);
  }
  void SetMusicFileName(const std::string&) override {}
  void SendMusicCommand(MusicCommand) override {}
  int MusicMode() override { return 0; }
  FileRead ReadFile(const std::string& path) override;
  void Note(const std::string& text) override {
    if (onNote) onNote(text);
  }
};

}  // namespace qb
