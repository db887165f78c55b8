// MIDI playback with SDL2_mixer: a piece is loaded on Open and played once on Play; the game's
// keep-alive timer restarts it when it has ended.
#include "audio/music_device.h"

#include <SDL2/SDL_mixer.h>
#include <fluidsynth.h>

#include <filesystem>
#include <fstream>
#include <mutex>
#include <string_view>
#include <utility>

namespace qb {
namespace {

// A Standard MIDI File starts with "MThd"; a RIFF MIDI file wraps one.
bool LooksLikeMidi(const std::string& path) {
  char head[4] = {};
  std::ifstream(path, std::ios::binary).read(head, sizeof head);
  return std::string_view(head, 4) == "MThd" || std::string_view(head, 4) == "RIFF";
}

// FluidSynth's own lines name no file, and it writes them from the audio thread while a piece
// plays. Its errors are kept here instead, for the device to report with the file; its
// warnings and notes, which a player cannot act on, are dropped.
std::mutex synthMutex;
std::string synthProblem;  // the first since the device last looked

void KeepSynthLine(int level, const char* message, void*) {
  if (level > FLUID_ERR || message == nullptr) return;  // warnings, information, debugging
  const std::lock_guard<std::mutex> lock(synthMutex);
  if (synthProblem.empty()) synthProblem = message;
}

std::string TakeSynthLine() {
  const std::lock_guard<std::mutex> lock(synthMutex);
  return std::exchange(synthProblem, {});
}

}  // namespace

MusicDevice::MusicDevice(ProblemLog& log) : log_(log) {
  for (int level = FLUID_PANIC; level < LAST_LOG_LEVEL; ++level)
    fluid_set_log_function(level, KeepSynthLine, nullptr);
}

void MusicDevice::TakeSynthProblem() {
  const std::string line = TakeSynthLine();
  if (line.empty() || openName_.empty()) return;
  broken_.insert(openName_);
  log_.Report("music damaged " + openName_,
              "music file " + openName_ + " cannot be played (" + line + "): playing without it");
  const std::string name = openName_;
  if (music_) Command(MusicCommand::Close);
  openName_ = name;  // lines still coming belong to it
}

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
  if (!mixerOpen_ || broken_.count(fileName_)) return;
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
  TakeSynthProblem();  // what is left of the piece before belongs to it
  openName_ = fileName_;
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
  TakeSynthProblem();
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

int MusicDevice::Mode() {
  TakeSynthProblem();
  if (!music_) return kMusicModeNotReady;
  return Mix_PlayingMusic() ? kMusicModePlaying : kMusicModeStopped;
}

}  // namespace qb
