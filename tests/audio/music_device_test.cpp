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

TEST(MusicDevice, TheModeFollowsTheCommandsAndAPieceThatEndsReportsStopped) {
  test::AudioDriver driver("dummy");
  std::ostringstream log;
  Audio audio(log);
  ASSERT_TRUE(audio.Open()) << log.str();
  EXPECT_EQ(audio.MusicMode(), kMusicModeNotReady);
  audio.SetMusicFileName(kMusic + "/POP.mid");
  audio.SendMusicCommand(MusicCommand::Open);
  EXPECT_EQ(audio.MusicMode(), kMusicModeStopped);  // opened, not yet playing
  audio.SendMusicCommand(MusicCommand::Play);
  audio.SendMusicCommand(MusicCommand::Play);  // playing on is not a restart
  EXPECT_EQ(audio.MusicMode(), kMusicModePlaying);
  audio.SendMusicCommand(MusicCommand::Stop);
  EXPECT_EQ(audio.MusicMode(), kMusicModeStopped);
  audio.SendMusicCommand(MusicCommand::Close);
  EXPECT_EQ(audio.MusicMode(), kMusicModeNotReady);

  // One second of music ends by itself, is not looped, and starts again when asked.
  const auto score = music::ReadScore("tempo 240\ntrack program=flute\n c4 e4 g4 >c4\n");
  ASSERT_TRUE(score.errors.empty());
  const auto path = TempFile("short.mid", music::WriteMidiFile(score.score));
  StartTrack(audio, path.string());
  EXPECT_EQ(audio.MusicMode(), kMusicModePlaying);
  const auto until = std::chrono::steady_clock::now() + std::chrono::seconds(6);
  while (audio.MusicMode() == kMusicModePlaying && std::chrono::steady_clock::now() < until)
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
  EXPECT_EQ(audio.MusicMode(), kMusicModeStopped);
  StartTrack(audio, path.string());  // what the keep-alive timer then does
  EXPECT_EQ(audio.MusicMode(), kMusicModePlaying);
  audio.SendMusicCommand(MusicCommand::Close);
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
  const std::string head("MThd\0\0\0\x06\0\0\0\x01\0\x60MTrk\0\0\0\x08", 22);
  const std::string damaged = head + "\xFF\xFF\xFF\xFF\xFF\x90\x3C\x40";
  const auto bad = TempFile("damaged.mid", {damaged.begin(), damaged.end()});
  const std::string stderrCopy = bad.string() + ".err";
  std::fflush(stderr);
  const int savedStderr = ::dup(2);
  std::freopen(stderrCopy.c_str(), "w", stderr);
  std::vector<std::string> logs;
  for (const auto& path : {kMusic + "/no-such-piece.mid", notMidi.string(), bad.string()}) {
    test::AudioDriver driver("dummy");
    std::ostringstream log;
    Audio audio(log);
    EXPECT_TRUE(audio.Open());
    for (int i = 0; i < 3; ++i) {
      StartTrack(audio, path);
      WaitForMode(audio, kMusicModeNotReady, std::chrono::seconds(3));
      EXPECT_EQ(audio.MusicMode(), kMusicModeNotReady) << path;
    }
    logs.push_back(log.str());
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
  const std::string expected[] = {
      "no-such-piece.mid", "is not a MIDI file",
      bad.string() + " cannot be played (Invalid variable length number)"};
  for (size_t i = 0; i < logs.size(); ++i) {
    EXPECT_EQ(std::count(logs[i].begin(), logs[i].end(), '\n'), 1) << logs[i];
    EXPECT_NE(logs[i].find(expected[i]), std::string::npos) << logs[i];
  }
}

TEST(AudioWithoutDevice, EverythingIsSilentAndReportedOnce) {
  {
    std::ostringstream log;
    Audio audio(log);  // commands before Open do nothing
    audio.PlayEffect("SOUND", 101);
    StartTrack(audio, kMusic + "/planet9.mid");
    EXPECT_EQ(audio.MusicMode(), kMusicModeNotReady);
    EXPECT_EQ(log.str(), "");
  }
  test::AudioDriver driver("no-such-audio-driver");
  std::ostringstream log;
  Audio audio(log);
  EXPECT_FALSE(audio.Open());
  EXPECT_FALSE(audio.Open());
  for (int n = 100; n <= 116; ++n) {
    audio.PlayEffect("SOUND", n);
    audio.PlayEffect("CUSTOM", n);
  }
  for (int i = 0; i < 3; ++i) StartTrack(audio, kMusic + "/planet9.mid");
  EXPECT_EQ(audio.MusicMode(), kMusicModeNotReady);
  EXPECT_EQ(test::LineCount(log), 1) << log.str();
  EXPECT_NE(log.str().find("no audio device"), std::string::npos);
}

}  // namespace
}  // namespace qb
