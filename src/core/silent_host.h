// A host that plays, shows and reads nothing: the base of the hosts of headless runs, which only
// say where level files come from.
#pragma once

#include "core/host.h"

namespace qb {

class SilentHost : public Host {
 public:
  void PlaySound(std::string_view, int) override {}
  void ShowScreen(Screen, const ScreenTexts&) override {}
  void ShowMessage(const std::string&, const std::string&) override {}
  void SetMusicFileName(const std::string&) override {}
  void SendMusicCommand(MusicCommand) override {}
  int MusicMode() override { return 0; }
  FileRead ReadFile(const std::string&) override { return {}; }
};

}  // namespace qb
