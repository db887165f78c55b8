// What the rules need from the outside: sound, modal screens, message boxes, the music device
// and the bytes of a file. The Qt application implements it; tools and tests use a recorder.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/file_read.h"

namespace qb {

enum class Screen { Title, WinLevel, LooseLevel, WonGame, ChooseLevel };

// The texts of a result or title screen, built by the rules from the counters.
struct ScreenTexts {
  std::string title;               // Label1
  std::vector<std::string> lines;  // Label2(0), Label2(1), ...
};

// The MCI-like commands of the music device.
enum class MusicCommand { Open, Play, Stop, Close };

// The device mode that means "a piece has ended".
inline constexpr int kMusicModeStopped = 525;

class Host {
 public:
  virtual ~Host() = default;
  // Plays the effect of that resource type ("SOUND" or "CUSTOM") and number, cutting off the one
  // still playing. Called only while "&Sound" is checked.
  virtual void PlaySound(std::string_view type, int number) = 0;
  // Shows a screen modally and returns when the player has closed it.
  virtual void ShowScreen(Screen screen, const ScreenTexts& texts) = 0;
  // A message box with an exclamation icon and a single OK button.
  virtual void ShowMessage(const std::string& text, const std::string& title) = 0;
  virtual void SetMusicFileName(const std::string& path) = 0;
  virtual void SendMusicCommand(MusicCommand command) = 0;
  virtual int MusicMode() = 0;
  // The whole content of a level file, or why it cannot be read.
  virtual FileRead ReadFile(const std::string& path) = 0;
  // One line for whoever started the game, on the error stream: what went wrong, and where.
  virtual void Note(const std::string& text) { (void)text; }
};

}  // namespace qb
