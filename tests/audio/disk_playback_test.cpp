// Real playback through SDL's disk audio driver: every effect and the first seconds of every
// track must write sound well above silence into the driver's output file.
#include <gtest/gtest.h>
#include <unistd.h>

#include <chrono>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <thread>

#include "audio/audio.h"
#include "audio/sound_bank.h"
#include "audio_env.h"
#include "midi_file.h"
#include "score_reader.h"

namespace qb {
namespace {

constexpr int kBytesPerSecond = 44100 * 2 * 2;  // the mixer's output: 44.1 kHz, stereo, 16 bits

struct Level {
  double rms = 0, peak = 0;
};

// Opens the audio on the disk driver, writing to a file of this test's own.
class DiskPlayback : public ::testing::Test {
 protected:
  void SetUp() override {
    file_ = std::filesystem::temp_directory_path() /
            ("quorbit-disk-" + std::to_string(::getpid()) + ".raw");
    test::AudioDriver::Set("SDL_DISKAUDIOFILE", file_.string());
    // 2 ms per 1024-frame buffer instead of 23 ms: the file fills ten times faster than real
    // time, with the same mixing.
    test::AudioDriver::Set("SDL_DISKAUDIODELAY", "2");
    ASSERT_TRUE(audio_.Open()) << log_.str();
  }
  void TearDown() override { std::filesystem::remove(file_); }

  size_t Written() const { return std::filesystem::file_size(file_); }

  // Waits until `seconds` of output after `from` have reached the file, then measures them.
  Level Measure(size_t from, double seconds) {
    const size_t bytes = static_cast<size_t>(seconds * kBytesPerSecond) & ~size_t{3};
    const auto until = std::chrono::steady_clock::now() + std::chrono::seconds(30);
    // Extra margin: the driver writes through a stdio buffer.
    while (Written() < from + bytes + 65536 && std::chrono::steady_clock::now() < until)
      std::this_thread::sleep_for(std::chrono::milliseconds(10));
    EXPECT_GE(Written(), from + bytes) << "the disk driver stopped writing";
    std::ifstream in(file_, std::ios::binary);
    in.seekg(static_cast<std::streamoff>(from));
    std::vector<int16_t> samples(bytes / 2);
    in.read(reinterpret_cast<char*>(samples.data()), static_cast<std::streamsize>(bytes));
    samples.resize(static_cast<size_t>(in.gcount()) / 2);
    Level level;
    double squares = 0;
    for (int16_t s : samples) {
      level.peak = std::max(level.peak, std::abs(s / 32768.0));
      squares += (s / 32768.0) * (s / 32768.0);
    }
    level.rms = samples.empty() ? 0 : std::sqrt(squares / static_cast<double>(samples.size()));
    return level;
  }

  // Plays a MIDI file and measures its first `seconds`.
  Level PlayMusic(const std::string& path, double seconds) {
    audio_.SetMusicFileName(path);
    audio_.SendMusicCommand(MusicCommand::Open);
    const size_t from = Written();
    audio_.SendMusicCommand(MusicCommand::Play);
    return Measure(from, seconds);
  }

  test::AudioDriver driver_{"disk"};
  std::filesystem::path file_;
  std::ostringstream log_;
  Audio audio_{log_};
};

// The last `seconds` of a piece: the notes that start there, moved to the start.
music::Score LastSeconds(music::Score score, double seconds) {
  const double from = score.SecondsAt(score.EndTick()) - seconds;
  int cut = score.EndTick();
  for (const auto& track : score.tracks)
    for (const auto& n : track.notes)
      if (score.SecondsAt(n.tick) >= from) cut = std::min(cut, n.tick);
  std::vector<music::Tempo> tempos;
  for (auto t : score.tempos) {
    t.tick = std::max(0, t.tick - cut);
    if (!tempos.empty() && t.tick == 0) tempos.clear();  // the tempo at the cut starts it
    tempos.push_back(t);
  }
  score.tempos = tempos;
  for (auto& track : score.tracks) {
    std::erase_if(track.notes, [&](const music::Note& n) { return n.tick < cut; });
    for (auto& n : track.notes) n.tick -= cut;
    std::erase_if(track.programChanges, [&](const auto& p) { return p.tick < cut; });
    for (auto& p : track.programChanges) p.tick -= cut;
    track.endTick = std::max(0, track.endTick - cut);
  }
  return score;
}

// The closing tutti of the grand finale, the loudest passage of all the music, played as the
// game plays it (cut from its source: a whole piece takes too long to render here) stays below
// full scale.
TEST_F(DiskPlayback, TheFinalesClosingTuttiDoesNotClip) {
  std::ifstream in(std::string(QUORBIT_MUSIC_SOURCE_DIR) + "/dbyd8.notes");
  std::stringstream text;
  text << in.rdbuf();
  const auto source = music::ReadScore(text.str());
  ASSERT_TRUE(source.errors.empty());
  const music::Score tutti = LastSeconds(source.score, 24);
  const auto bytes = music::WriteMidiFile(tutti);
  const auto path = file_.string() + ".mid";
  std::ofstream(path, std::ios::binary)
      .write(reinterpret_cast<const char*>(bytes.data()),
             static_cast<std::streamsize>(bytes.size()));
  const Level level = PlayMusic(path, tutti.SecondsAt(tutti.EndTick()));
  std::filesystem::remove(path);
  EXPECT_GT(level.rms, 0.05);
  EXPECT_LT(level.peak, 0.99);
  EXPECT_EQ(log_.str(), "");
}

TEST_F(DiskPlayback, TheFirstSecondsOfEveryTrackAreWellAboveSilence) {
  for (const char* name : {"planet9", "Rockem3d", "yuffies", "pktsym", "POP", "danceoftheheavens",
                           "PIANO", "7[1]", "smooth", "dbyd8"}) {
    const Level level = PlayMusic(std::string(QUORBIT_MUSIC_DIR) + "/" + name + ".mid", 4.0);
    EXPECT_GT(level.rms, 0.01) << name;
    EXPECT_GT(level.peak, 0.05) << name;
    audio_.SendMusicCommand(MusicCommand::Stop);
  }
  EXPECT_EQ(log_.str(), "");
}

}  // namespace
}  // namespace qb
