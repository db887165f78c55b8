// The MIDI music device: the Open/Play/Stop/Close commands on a file name, and its mode, played
// through SDL2_mixer (FluidSynth with the General MIDI sound font).
#pragma once

#include <set>
#include <string>

#include "audio/problem_log.h"
#include "core/host.h"

struct _Mix_Music;

namespace qb {

// Modes as the rules read them: kMusicModeStopped (525) means "opened, and not playing".
inline constexpr int kMusicModeNotReady = 524;  // nothing open
inline constexpr int kMusicModePlaying = 526;

class MusicDevice {
 public:
  explicit MusicDevice(ProblemLog& log);
  ~MusicDevice();
  MusicDevice(const MusicDevice&) = delete;
  MusicDevice& operator=(const MusicDevice&) = delete;

  // Whether the mixer is open; without it every command does nothing and the mode stays
  // "not ready", so the keep-alive timer never retries.
  void SetMixerOpen(bool open) { mixerOpen_ = open; }
  // Closes the piece and frees everything it kept; needed before the mixer closes.
  void Release();
  void SetFileName(const std::string& path) { fileName_ = path; }
  void Command(MusicCommand command);
  int Mode();

 private:
  void Open();
  // Reports what FluidSynth said of the piece since the last call, once, naming the file, and
  // closes the piece for good: it would fail the same way at each restart.
  void TakeSynthProblem();

  ProblemLog& log_;
  bool mixerOpen_ = false;
  std::string fileName_;
  std::string openName_;          // the file of the open piece
  std::set<std::string> broken_;  // files FluidSynth could not play, not opened again
  _Mix_Music* music_ = nullptr;
  // The piece closed last, freed only once the next one is loaded: while it lives, FluidSynth
  // keeps the sound font's samples in memory, so the next Open takes a fraction of a second
  // instead of re-reading the whole sound font.
  _Mix_Music* retired_ = nullptr;
};

}  // namespace qb
