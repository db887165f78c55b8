// The ten generated pieces: valid format-1 MIDI files of at least a minute, every note released,
// drums on the General MIDI percussion keys.
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <map>

#include "smf_reader.h"

namespace qb {
namespace {

TEST(MusicFiles, EachIsAValidFormat1FileOfAtLeastAMinute) {
  for (const char* name : {"planet9", "Rockem3d", "yuffies", "pktsym", "POP", "danceoftheheavens",
                           "PIANO", "7[1]", "smooth", "dbyd8"}) {
    SCOPED_TRACE(name);
    std::ifstream in(std::string(QUORBIT_MUSIC_DIR) + "/" + name + ".mid", std::ios::binary);
    std::string why;
    const auto f = test::ReadMidi(
        {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()}, &why);
    ASSERT_TRUE(f) << why;
    ASSERT_EQ(f->format, 1);
    ASSERT_GE(f->tracks.size(), 3u);  // conductor and at least two parts
    EXPECT_GE(f->Seconds(), 60.0);
    std::map<std::pair<int, int>, int> sounding;  // (channel, key) -> notes still on
    for (const auto& t : f->tracks) {
      EXPECT_TRUE(t.endsWithEndOfTrack);
      for (const auto& e : t.events) {
        if (e.Kind() == 0x90 && e.data2 > 0) {
          ++sounding[{e.Channel(), e.data1}];
          const bool percussionKey = e.data1 >= 35 && e.data1 <= 81;
          EXPECT_TRUE(e.Channel() != 10 || percussionKey) << e.data1;
        } else if (e.Kind() == 0x80 || e.Kind() == 0x90) {
          const std::pair<int, int> key{e.Channel(), e.data1};
          EXPECT_GT(sounding[key]--, 0) << "note off without a note on";
        }
      }
    }
    for (const auto& [key, count] : sounding) EXPECT_EQ(count, 0) << "a note is never released";
  }
}

}  // namespace
}  // namespace qb
