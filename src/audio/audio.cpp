// Opens SDL audio and the mixer, plays effects on one dedicated channel, and forwards the music
// commands to the MIDI device.
#include "audio/audio.h"

#include <SDL2/SDL.h>
#include <SDL2/SDL_mixer.h>

#include <filesystem>

#include "audio/sound_bank.h"

namespace qb {
namespace {

// All effects share one channel, so a new effect cuts off the one still playing.
constexpr int kEffectChannel = 0;
constexpr int kMusicVolume = MIX_MAX_VOLUME / 2;

}  // namespace

Audio::Audio(std::ostream& problems) : log_(problems), music_(log_) {}

Audio::~Audio() {
  Close();
}

bool Audio::Open() {
  if (open_) return true;
  if (log_.Reported("device")) return false;  // tried before and failed: stay silent
  // SDL would otherwise catch SIGINT and SIGTERM for an event loop the game does not run, and the
  // game could no longer be stopped by them.
  SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
  if (SDL_InitSubSystem(SDL_INIT_AUDIO) != 0) {
    log_.Report("device", std::string("no audio device (") + SDL_GetError() +
                              "): playing without sound or music");
    return false;
  }
  std::error_code error;
  if (std::filesystem::exists(kSoundFontPath, error)) {
    Mix_SetSoundFonts(kSoundFontPath);
  } else {
    log_.Report("sound font",
                std::string("no MIDI sound font at ") + kSoundFontPath + ": music may not play");
  }
  Mix_Init(MIX_INIT_MID);
  if (Mix_OpenAudio(44100, MIX_DEFAULT_FORMAT, 2, 1024) != 0) {
    log_.Report("device", std::string("cannot open the audio device (") + Mix_GetError() +
                              "): playing without sound or music");
    Mix_Quit();
    SDL_QuitSubSystem(SDL_INIT_AUDIO);
    return false;
  }
  Mix_AllocateChannels(1);
  // FluidSynth's gain follows the music volume (full volume is six times its own default),
  // and it clips before the mixer: at full volume the loudest pieces distort, and the effects
  // would drown. About half keeps the tutti passages clean.
  Mix_VolumeMusic(kMusicVolume);
  open_ = true;
  music_.SetMixerOpen(true);
  return true;
}

void Audio::Close() {
  if (!open_) return;
  music_.Release();
  music_.SetMixerOpen(false);
  Mix_HaltChannel(-1);
  for (auto& [key, chunk] : chunks_) Mix_FreeChunk(chunk);
  chunks_.clear();
  Mix_CloseAudio();
  Mix_Quit();
  SDL_QuitSubSystem(SDL_INIT_AUDIO);
  open_ = false;
}

Mix_Chunk* Audio::Chunk(std::string_view type, int number) {
  const auto key = std::make_pair(std::string(type), number);
  if (const auto it = chunks_.find(key); it != chunks_.end()) return it->second;
  const auto wav = FindSound(type, number);
  if (wav.empty()) return nullptr;
  Mix_Chunk* chunk =
      Mix_LoadWAV_RW(SDL_RWFromConstMem(wav.data(), static_cast<int>(wav.size())), 1);
  if (!chunk) {
    log_.Report("effect", std::string("cannot decode a sound effect: ") + Mix_GetError());
    return nullptr;
  }
  chunks_[key] = chunk;
  return chunk;
}

void Audio::PlayEffect(std::string_view type, int number) {
  if (!open_) return;
  Mix_Chunk* chunk = Chunk(type, number);
  if (!chunk) return;
  Mix_HaltChannel(kEffectChannel);
  Mix_PlayChannel(kEffectChannel, chunk, 0);
}

void Audio::SetMusicFileName(const std::string& path) {
  music_.SetFileName(path);
}

void Audio::SendMusicCommand(MusicCommand command) {
  music_.Command(command);
}

int Audio::MusicMode() {
  return music_.Mode();
}

}  // namespace qb
