// MIDI playback with SDL2_mixer: a piece is loaded on Open and played once on Play; the game's
// keep-alive timer restarts it when it has ended.
#include "audio/music_device.h"

#include <SDL2/SDL_mixer.h>

#include <filesystem>
#include <fstream>
#include <string_view>

namespace qb {
namespace {

// A Standard MIDI File starts with "MThd"; a RIFF MIDI file wraps one.
bool LooksLikeMidi(const std::string& path) {
  char head[4] = {};
  std::ifstream(path, std::ios::binary).read(head, sizeof head);
  return std::string_view(head, 4) == "MThd" || std::string_view(head, 4) == "RIFF";
}

}  // namespace

MusicDevice::~MusicDevice() {
  Release();
}

void MusicDevice::Release() {
  Command(MusicCommand::Close);
  if (retired_) Mix_FreeMusic(retired_);
  retired_ = nullptr;
}

void MusicDevice::Open() {
  if (music_) return;
  if (!mixerOpen_) return;
  std::error_code error;
  if (!std::filesystem::is_regular_file(fileName_, error)) {
    log_.Report("music file", "music file " + fileName_ + " not found: playing without music");
    return;
  }
  if (!LooksLikeMidi(fileName_)) {
    // SDL2_mixer goes by the name and would hand any ".mid" to FluidSynth, which then neither
    // plays nor fails, so the keep-alive timer would reload it every half second.
    log_.Report("music load",
                "music file " + fileName_ + " is not a MIDI file: playing without it");
    return;
  }
  music_ = Mix_LoadMUS(fileName_.c_str());
  if (retired_) {
    Mix_FreeMusic(retired_);
    retired_ = nullptr;
  }
  if (!music_)
    log_.Report("music load",
                "cannot play music " + fileName_ + " (" + Mix_GetError() + "): playing without it");
}

void MusicDevice::Command(MusicCommand command) {
  switch (command) {
    case MusicCommand::Open:
      Open();
      break;
    case MusicCommand::Play:
      // Once through, not looped: the rules restart a piece that has ended.
      if (music_ && !Mix_PlayingMusic() && Mix_PlayMusic(music_, 1) != 0) {
        log_.Report("music play", std::string("cannot start the music: ") + Mix_GetError());
        // Closed rather than "stopped", so the keep-alive timer does not retry it forever.
        Command(MusicCommand::Close);
      }
      break;
    case MusicCommand::Stop:
      if (music_) Mix_HaltMusic();
      break;
    case MusicCommand::Close:
      if (music_) {
        Mix_HaltMusic();
        if (retired_) Mix_FreeMusic(retired_);
        retired_ = music_;
        music_ = nullptr;
      }
      break;
  }
}

int MusicDevice::Mode() const {
  if (!music_) return kMusicModeNotReady;
  return Mix_PlayingMusic() ? kMusicModePlaying : kMusicModeStopped;
}

}  // namespace qb
