// A host for the command-line tools: reads real files, plays nothing, shows nothing.
#pragma once

#include <string>

#include "core/host.h"

namespace qb {

class FileHost : public Host {
 public:
  void PlaySound(std::string_view, int) override {}
  void ShowScreen(Screen, const ScreenTexts&) override {}
  void ShowMessage(const std::string&, const std::string&) override {}
  void SetMusicFileName(const std::string&) override {}
  void SendMusicCommand(MusicCommand) override {}
  int MusicMode() override { return 0; }
  FileRead ReadFile(const std::string& path) override;
};

}  // namespace qb
