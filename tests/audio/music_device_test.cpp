// The audio helper without real sound: the music device's modes through Open/Play/Stop/Close,
// a piece that ends by itself, and bad files or no audio device reported once, no crash.
#include <gtest/gtest.h>
#include <unistd.h>

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

TEST(MusicDevice, AMissingOrDamagedFilePlaysNothingAndIsReportedOnce) {
  const std::string text = "this is not a MIDI file\n";
  const auto notMidi = TempFile("not-midi.mid", {text.begin(), text.end()});
  for (const auto& [path, message] : {std::pair{kMusic + "/no-such-piece.mid", "no-such-piece.mid"},
                                      std::pair{notMidi.string(), "is not a MIDI file"}}) {
    SCOPED_TRACE(path);
    test::AudioDriver driver("dummy");
    std::ostringstream log;
    Audio audio(log);
    ASSERT_TRUE(audio.Open());
    for (int i = 0; i < 4; ++i) {
      StartTrack(audio, path);
      // Not "stopped": the keep-alive timer must not retry a file that cannot play.
      EXPECT_EQ(audio.MusicMode(), kMusicModeNotReady);
    }
    EXPECT_EQ(test::LineCount(log), 1) << log.str();
    EXPECT_NE(log.str().find(message), std::string::npos) << log.str();
    StartTrack(audio, kMusic + "/planet9.mid");  // a real file still plays afterwards
    EXPECT_EQ(audio.MusicMode(), kMusicModePlaying);
  }
  std::filesystem::remove(notMidi);
}

// A damaged piece is named in one line of ours; FluidSynth's own lines, which name no file, do not
// reach the error stream, and the piece is not restarted every half second.
TEST(MusicDevice, ADamagedPieceIsReportedOnceByName) {
  test::AudioDriver driver("dummy");
  const auto path = std::filesystem::temp_directory_path() /
                    ("quorbit-damaged-" + std::to_string(::getpid()) + ".mid");
  // One track whose first delta time runs over five bytes: not a variable length number.
  const std::string track = "\xFF\xFF\xFF\xFF\xFF\x90\x3C\x40";
  std::ofstream(path, std::ios::binary)
      << std::string("MThd\0\0\0\x06\0\0\0\x01\0\x60MTrk\0\0\0", 21) << char(track.size()) << track;
  const std::string stderrCopy = path.string() + ".err";
  std::fflush(stderr);
  const int savedStderr = ::dup(2);
  std::freopen(stderrCopy.c_str(), "w", stderr);
  std::ostringstream log;
  {
    Audio audio(log);
    ASSERT_TRUE(audio.Open());
    for (int i = 0; i < 3; ++i) {
      StartTrack(audio, path.string());
      WaitForMode(audio, kMusicModeNotReady, std::chrono::seconds(3));
    }
    EXPECT_EQ(audio.MusicMode(), kMusicModeNotReady);
  }
  std::fflush(stderr);
  ::dup2(savedStderr, 2);
  ::close(savedStderr);
  std::ifstream copy(stderrCopy);
  const std::string synthLines{std::istreambuf_iterator<char>(copy), {}};
  std::filesystem::remove(path);
  std::filesystem::remove(stderrCopy);
  EXPECT_EQ(synthLines, "");
  EXPECT_EQ(test::LineCount(log), 1) << log.str();
  EXPECT_NE(log.str().find(path.string() + " cannot be played (Invalid variable length number)"),
            std::string::npos)
      << log.str();
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
