// Developer tool: plays one built-in effect or one music file through the game's own audio (the
// mixer, the sound font and the music volume the game uses) into SDL's disk audio driver, and
// writes what a player would hear as a WAV file, so that levels can be measured
// (scripts/measure-audio.sh).
#include <SDL2/SDL_mixer.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include "audio/audio.h"
#include "audio/sound_bank.h"

namespace {

using Clock = std::chrono::steady_clock;

size_t FileSize(const std::string& path) {
  std::error_code error;
  const auto size = std::filesystem::file_size(path, error);
  return error ? 0 : static_cast<size_t>(size);
}

void Put(std::ofstream& out, uint32_t value, int bytes) {
  for (int i = 0; i < bytes; ++i) out.put(static_cast<char>(value >> (8 * i)));
}

bool WriteWav(const std::string& path, const std::vector<int16_t>& samples, int rate,
              int channels) {
  std::ofstream out(path, std::ios::binary);
  const auto dataBytes = static_cast<uint32_t>(samples.size() * 2);
  out.write("RIFF", 4);
  Put(out, 36 + dataBytes, 4);
  out.write("WAVEfmt ", 8);
  Put(out, 16, 4);
  Put(out, 1, 2);  // PCM
  Put(out, static_cast<uint32_t>(channels), 2);
  Put(out, static_cast<uint32_t>(rate), 4);
  Put(out, static_cast<uint32_t>(rate * channels * 2), 4);
  Put(out, static_cast<uint32_t>(channels * 2), 2);
  Put(out, 16, 2);
  out.write("data", 4);
  Put(out, dataBytes, 4);
  out.write(reinterpret_cast<const char*>(samples.data()), dataBytes);
  return static_cast<bool>(out);
}

// Reads the driver's output and drops the silence before the sound started and after it ended,
// whole frames at a time.
std::vector<int16_t> SoundingPart(const std::string& raw, int channels) {
  std::ifstream in(raw, std::ios::binary);
  std::vector<int16_t> samples(FileSize(raw) / 2);
  in.read(reinterpret_cast<char*>(samples.data()),
          static_cast<std::streamsize>(samples.size() * 2));
  samples.resize(static_cast<size_t>(in.gcount()) / 2 / channels * channels);
  size_t first = 0, end = samples.size();
  while (first < end && samples[first] == 0) ++first;
  while (end > first && samples[end - 1] == 0) --end;
  first -= first % channels;
  end += (channels - end % channels) % channels;
  return {samples.begin() + static_cast<std::ptrdiff_t>(first),
          samples.begin() + static_cast<std::ptrdiff_t>(end)};
}

int Usage() {
  std::cerr << "usage: quorbit-render-audio effect TYPE NUMBER OUT.wav\n"
               "       quorbit-render-audio music FILE.mid OUT.wav\n";
  return 2;
}

}  // namespace

int main(int argc, char** argv) {
  const std::string mode = argc > 1 ? argv[1] : "";
  if (!((mode == "effect" && argc == 5) || (mode == "music" && argc == 4))) return Usage();
  const std::string out = argv[argc - 1];
  const std::string raw = out + ".raw";
  std::filesystem::remove(raw);
  setenv("SDL_AUDIODRIVER", "disk", 1);
  setenv("SDL_DISKAUDIOFILE", raw.c_str(), 1);
  // 1 ms per buffer: the file fills many times faster than real time, with the same mixing.
  setenv("SDL_DISKAUDIODELAY", "1", 1);

  int rate = 0, channels = 0;
  {
    std::ostringstream problems;
    qb::Audio audio(problems);
    if (!audio.Open()) {
      std::cerr << problems.str();
      return 1;
    }
    Uint16 format = 0;
    Mix_QuerySpec(&rate, &format, &channels);
    if (format != AUDIO_S16SYS) {
      std::cerr << "the mixer does not run on 16-bit samples\n";
      return 1;
    }
    bool playing = false;
    if (mode == "effect") {
      const int number = std::atoi(argv[3]);
      if (qb::FindSound(argv[2], number).empty()) {
        std::cerr << "no built-in effect " << argv[2] << ' ' << argv[3] << '\n';
        return 1;
      }
      audio.PlayEffect(argv[2], number);
      playing = Mix_Playing(-1) > 0;
    } else {
      audio.SetMusicFileName(argv[2]);
      audio.SendMusicCommand(qb::MusicCommand::Open);
      audio.SendMusicCommand(qb::MusicCommand::Play);
      playing = audio.MusicMode() == qb::kMusicModePlaying;
    }
    if (!playing) {
      std::cerr << "nothing plays: " << problems.str();
      return 1;
    }
    const auto giveUp = Clock::now() + std::chrono::minutes(10);
    auto stillPlaying = [&] {
      return mode == "effect" ? Mix_Playing(-1) > 0 : audio.MusicMode() == qb::kMusicModePlaying;
    };
    while (stillPlaying() && Clock::now() < giveUp)
      std::this_thread::sleep_for(std::chrono::milliseconds(5));
    // A little more output, so the last sound has left the mixer and the driver's buffer.
    const size_t ended = FileSize(raw);
    while (FileSize(raw) < ended + static_cast<size_t>(rate * channels * 2) / 2 &&
           Clock::now() < giveUp)
      std::this_thread::sleep_for(std::chrono::milliseconds(5));
  }
  const auto samples = SoundingPart(raw, channels);
  std::filesystem::remove(raw);
  if (!WriteWav(out, samples, rate, channels)) {
    std::cerr << out << ": cannot write\n";
    return 1;
  }
  size_t clipped = 0;
  for (int16_t s : samples) clipped += s >= 32767 || s <= -32768;
  std::printf("%s: %.2f s, %zu clipped samples\n", out.c_str(),
              static_cast<double>(samples.size()) / channels / rate, clipped);
  return 0;
}
