// The ten generated pieces: valid format-1 MIDI files of at least a minute, with General MIDI
// instruments, each with a character of its own, and a finale that sounds like one.
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <map>
#include <set>

#include "smf_reader.h"

namespace qb {
namespace {

const char* const kTracks[] = {"planet9",           "Rockem3d", "yuffies", "pktsym", "POP",
                               "danceoftheheavens", "PIANO",    "7[1]",    "smooth", "dbyd8"};

std::vector<uint8_t> ReadBytes(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

test::MidiFile Load(const std::string& name) {
  std::string why;
  const auto file =
      test::ReadMidi(ReadBytes(std::string(QUORBIT_MUSIC_DIR) + "/" + name + ".mid"), &why);
  EXPECT_TRUE(file) << name << ": " << why;
  return file ? *file : test::MidiFile{};
}

// Programs used outside the percussion channel.
std::set<int> Programs(const test::MidiFile& f) {
  std::set<int> programs;
  for (const auto& t : f.tracks)
    for (const auto& e : t.events)
      if (e.Kind() == 0xC0 && e.Channel() != 10) programs.insert(e.data1);
  return programs;
}

double FirstTempo(const test::MidiFile& f) {
  for (const auto& e : f.tracks[0].events)
    if (e.status == 0xFF && e.data1 == 0x51)
      return 60e6 / ((e.meta[0] << 16) | (e.meta[1] << 8) | e.meta[2]);
  return 120;
}

TEST(MusicFiles, EachIsAValidFormat1FileOfAtLeastAMinute) {
  int withDrums = 0;
  for (const char* name : kTracks) {
    SCOPED_TRACE(name);
    const auto f = Load(name);
    ASSERT_EQ(f.format, 1);
    ASSERT_GE(f.tracks.size(), 3u);  // conductor and at least two parts
    EXPECT_GE(f.Seconds(), 60.0);
    EXPECT_FALSE(Programs(f).empty());
    bool drums = false;
    std::map<std::pair<int, int>, int> sounding;  // (channel, key) -> notes still on
    for (const auto& t : f.tracks) {
      EXPECT_TRUE(t.endsWithEndOfTrack);
      for (const auto& e : t.events) {
        if (e.Kind() == 0x90 && e.data2 > 0) {
          ++sounding[{e.Channel(), e.data1}];
          if (e.Channel() == 10) {
            drums = true;
            EXPECT_GE(e.data1, 35);  // the General MIDI percussion keys
            EXPECT_LE(e.data1, 81);
          }
        } else if (e.Kind() == 0x80 || e.Kind() == 0x90) {
          const std::pair<int, int> key{e.Channel(), e.data1};
          EXPECT_GT(sounding[key]--, 0) << "note off without a note on";
        }
      }
    }
    for (const auto& [key, count] : sounding) EXPECT_EQ(count, 0) << "a note is never released";
    withDrums += drums;
    std::cout << name << ": " << f.tracks.size() - 1 << " parts, " << f.Seconds() << " s, "
              << FirstTempo(f) << " bpm\n";
  }
  EXPECT_GE(withDrums, 5);
}

TEST(MusicFiles, NoTwoPiecesUseTheSameInstruments) {
  std::map<std::string, std::set<int>> instruments;
  for (const char* name : kTracks) instruments[name] = Programs(Load(name));
  for (const auto& [a, pa] : instruments)
    for (const auto& [b, pb] : instruments)
      if (a < b) {
        EXPECT_NE(pa, pb) << a << " and " << b;
      }
}

TEST(MusicFiles, TheLastLevelsTrackIsAGrandFinale) {
  const auto f = Load("dbyd8");
  const auto programs = Programs(f);
  EXPECT_TRUE(programs.count(47)) << "timpani";
  int brass = 0;
  for (int p : programs) brass += p >= 56 && p <= 63;
  EXPECT_GE(brass, 2);
  // It broadens: the last tempo is slower than the first.
  double lastTempo = FirstTempo(f);
  for (const auto& t : f.tracks)
    for (const auto& e : t.events)
      if (e.status == 0xFF && e.data1 == 0x51)
        lastTempo = 60e6 / ((e.meta[0] << 16) | (e.meta[1] << 8) | e.meta[2]);
  EXPECT_LT(lastTempo, FirstTempo(f) * 0.8);
  // It ends on a big chord: many notes struck together at the last note-on.
  int lastOn = 0;
  for (const auto& t : f.tracks)
    for (const auto& e : t.events)
      if (e.Kind() == 0x90 && e.data2 > 0) lastOn = std::max(lastOn, e.tick);
  int struck = 0;
  for (const auto& t : f.tracks)
    for (const auto& e : t.events) struck += e.Kind() == 0x90 && e.data2 > 0 && e.tick == lastOn;
  EXPECT_GE(struck, 8);
}

}  // namespace
}  // namespace qb
