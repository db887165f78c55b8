// The host of the rules in the game: sound and music, the modal screens, message boxes, files.
#pragma once

#include <functional>
#include <memory>

#include "core/host.h"

namespace qb {
class Audio;
}

namespace qb::ui {

class DeskTop;

class QtHost : public Host {
 public:
  QtHost();
  ~QtHost() override;
  // The window the screens and messages are shown over; its timers stop while they are up.
  void SetWindow(DeskTop* window) { window_ = window; }

  void PlaySound(std::string_view type, int number) override;
  void ShowScreen(Screen screen, const ScreenTexts& texts) override;
  void ShowMessage(const std::string& text, const std::string& title) override;
  void SetMusicFileName(const std::string& path) override;
  void SendMusicCommand(MusicCommand command) override;
  int MusicMode() override;
  FileRead ReadFile(const std::string& path) override;
  void Note(const std::string& text) override;

  // Replaces the modal screens (tests, the unattended runs of the end-to-end script).
  using ScreenShower = std::function<void(Screen, const ScreenTexts&)>;
  using MessageShower = std::function<void(const std::string&, const std::string&)>;
  void SetScreenShower(ScreenShower shower) { screenShower_ = std::move(shower); }
  void SetMessageShower(MessageShower shower) { messageShower_ = std::move(shower); }

 private:
  DeskTop* window_ = nullptr;
  std::unique_ptr<Audio> audio_;
  ScreenShower screenShower_;
  MessageShower messageShower_;
};

}  // namespace qb::ui
