// The audio helper without real sound: the music device's modes through Open/Play/Stop/Close,
// a piece that ends by itself, and bad files or no audio device reported once, no crash.
#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <thread>

#include "audio/audio.h"
#include "audio_env.h"
#include "midi_file.h"
#include "score_reader.h"

namespace qb {
namespace {

const std::string kMusic = QUORBIT_MUSIC_DIR;

// The command sequence the rules send to start a track.
void StartTrack(Audio& audio, const std::string& path) {
  audio.SendMusicCommand(MusicCommand::Stop);
  audio.SendMusicCommand(MusicCommand::Close);
  audio.SetMusicFileName(path);
  audio.SendMusicCommand(MusicCommand::Open);
  audio.SendMusicCommand(MusicCommand::Play);
}

bool WaitForMode(Audio& audio, int mode, std::chrono::milliseconds limit) {
  const auto until = std::chrono::steady_clock::now() + limit;
  while (audio.MusicMode() != mode && std::chrono::steady_clock::now() < until)
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
  return audio.MusicMode() == mode;
}

std::filesystem::path TempFile(const std::string& name, const std::vector<uint8_t>& bytes) {
  const auto path = std::filesystem::temp_directory_path() /
                    ("quorbit-" + std::to_string(::getpid()) + "-" + name);
  std::ofstream(path, std::ios::binary)
      .write(reinterpret_cast<const char*>(bytes.data()),
             static_cast<std::streamsize>(bytes.size()));
  return path;
}

// One second of music: opened it is stopped; it plays, ends by itself without looping, and starts
// again when the keep-alive timer asks.
TEST(MusicDevice, TheModeFollowsTheCommandsAndAPieceThatEndsReportsStopped) {
  test::AudioDriver driver("dummy");
  std::ostringstream log;
  Audio audio(log);
  ASSERT_TRUE(audio.Open()) << log.str();
  const auto score = music::ReadScore("tempo 240\ntrack program=flute\n c4 e4 g4 >c4\n");
  const auto path = TempFile("short.mid", music::WriteMidiFile(score.score));
  audio.SetMusicFileName(path.string());
  audio.SendMusicCommand(MusicCommand::Open);
  EXPECT_EQ(audio.MusicMode(), kMusicModeStopped);
  audio.SendMusicCommand(MusicCommand::Play);
  EXPECT_EQ(audio.MusicMode(), kMusicModePlaying);
  EXPECT_TRUE(WaitForMode(audio, kMusicModeStopped, std::chrono::seconds(6)));
  StartTrack(audio, path.string());
  EXPECT_EQ(audio.MusicMode(), kMusicModePlaying);
  audio.SendMusicCommand(MusicCommand::Close);
  EXPECT_EQ(audio.MusicMode(), kMusicModeNotReady);
  std::filesystem::remove(path);
  EXPECT_EQ(log.str(), "");
}

// A missing, foreign or damaged piece plays nothing and is named in one line of ours, however
// often it is started; FluidSynth's own lines, which name no file, do not reach the error stream.
// It is not "stopped", so the keep-alive timer does not retry it, and a real piece still plays.
TEST(MusicDevice, ABadPieceIsReportedOnceByNameAndPlaysNothing) {
  const std::string text = "this is not a MIDI file\n";
  const auto notMidi = TempFile("not-midi.mid", {text.begin(), text.end()});
  // One track whose first delta time runs over five bytes: not a variable length number.
  const std::string damaged = std::string("MThd\0\0\0\x06\0\0\0\x01\0\x60MTrk\0\0\0\x08", 22) +
                              "\xFF\xFF\xFF\xFF\xFF\x90\x3C\x40";
  const auto bad = TempFile("damaged.mid", {damaged.begin(), damaged.end()});
  const std::string stderrCopy = bad.string() + ".err";
  std::fflush(stderr);
  const int savedStderr = ::dup(2);
  std::freopen(stderrCopy.c_str(), "w", stderr);
  const std::pair<std::string, std::string> cases[] = {
      {kMusic + "/no-such-piece.mid", "no-such-piece.mid"},
      {notMidi.string(), "is not a MIDI file"},
      {bad.string(), bad.string() + " cannot be played (Invalid variable length number)"}};
  for (const auto& [path, message] : cases) {
    test::AudioDriver driver("dummy");
    std::ostringstream log;
    Audio audio(log);
    EXPECT_TRUE(audio.Open());
    for (int i = 0; i < 3; ++i) {
      StartTrack(audio, path);
      EXPECT_TRUE(WaitForMode(audio, kMusicModeNotReady, std::chrono::seconds(3))) << path;
    }
    const std::string lines = log.str();
    EXPECT_EQ(std::count(lines.begin(), lines.end(), '\n'), 1) << lines;
    EXPECT_NE(lines.find(message), std::string::npos) << lines;
    StartTrack(audio, kMusic + "/planet9.mid");
    EXPECT_EQ(audio.MusicMode(), kMusicModePlaying);
  }
  std::fflush(stderr);
  ::dup2(savedStderr, 2);
  ::close(savedStderr);
  std::ifstream copy(stderrCopy);
  EXPECT_EQ(std::string(std::istreambuf_iterator<char>(copy), {}), "");
  for (const auto& f : {notMidi, bad, std::filesystem::path(stderrCopy)})
    std::filesystem::remove(f);
}

// Without a device, and before Open, effects and music are silent; the missing device is one line.
TEST(AudioWithoutDevice, EverythingIsSilentAndReportedOnce) {
  test::AudioDriver driver("no-such-audio-driver");
  std::ostringstream log;
  Audio audio(log);
  for (int i = 0; i < 3; ++i) {
    audio.PlayEffect("SOUND", 101 + i);
    StartTrack(audio, kMusic + "/planet9.mid");
    EXPECT_FALSE(audio.Open());
  }
  const std::string text = log.str();
  EXPECT_EQ(audio.MusicMode(), kMusicModeNotReady);
  EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 1) << text;
  EXPECT_NE(text.find("no audio device"), std::string::npos);
}

}  // namespace
}  // namespace qb
