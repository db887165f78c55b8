// Sound for the game window: built-in effects and the MIDI music device, through SDL2_mixer.
// Every failure (no audio device, no sound font, a missing music file) is reported once on the
// error stream and the game goes on silently.
#pragma once

#include <iostream>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "audio/music_device.h"
#include "audio/problem_log.h"
#include "core/host.h"

struct Mix_Chunk;

namespace qb {

// Where SDL2_mixer's FluidSynth back end finds its General MIDI instruments.
inline constexpr const char* kSoundFontPath = "/usr/share/sounds/sf2/default-GM.sf2";

class Audio {
 public:
  Audio() : Audio(std::cerr) {}
  explicit Audio(std::ostream& problems);
  ~Audio();
  Audio(const Audio&) = delete;
  Audio& operator=(const Audio&) = delete;

  // Opens SDL audio and the mixer; false (and one line on the error stream) when there is no
  // device. Safe to call again.
  bool Open();
  // Plays the built-in effect ("SOUND" or "CUSTOM", number), cutting off the one still
  // playing. Unknown numbers, such as 103, play nothing.
  void PlayEffect(std::string_view type, int number);
  void SetMusicFileName(const std::string& path);
  void SendMusicCommand(MusicCommand command);
  // 525 when an opened piece is not playing (ended or stopped), 526 while it plays, 524 when
  // nothing is open.
  int MusicMode();

 private:
  Mix_Chunk* Chunk(std::string_view type, int number);
  void Close();

  ProblemLog log_;
  MusicDevice music_;
  bool open_ = false;
  std::map<std::pair<std::string, int>, Mix_Chunk*> chunks_;  // decoded once, kept until Close
};

}  // namespace qb
