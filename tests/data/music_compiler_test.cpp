// The note notation compiler and the MIDI file writer: pitches, lengths, repeats, defines,
// chords, ties, checks and messages, and a written file read back by an independent reader.
#include <gtest/gtest.h>

#include <array>

#include "midi_file.h"
#include "score_reader.h"
#include "smf_reader.h"

namespace qb::music {
namespace {

constexpr int Q = kTicksPerQuarter;

TEST(NoteNotation, CompilesToTheseKeysStartsAndLengths) {
  struct Case {
    const char *header, *body;
    std::vector<int> keys, starts, lengths;
  };
  const Case cases[] = {
      {"", "o4 c d e f g a b > c", {60, 62, 64, 65, 67, 69, 71, 72}, {}, {}},
      {"", "o4 c+ d- e-- b+ < c o0 c o9 g", {61, 61, 62, 72, 48, 12, 127}, {}, {}},
      {"", "K S H C", {36, 38, 42, 49}, {}, {}},
      // Dotted, double-dotted, a rest, default lengths, triplets, a note tied on twice.
      {"",
       "q100 c4 c8 c8. c16 c2.. r4 l16 c c l12 c c c c1^4^8",
       {},
       {0, 480, 720, 1080, 1200, 3360, 3480, 3600, 3760, 3920, 4080},
       {Q, Q / 2, Q * 3 / 4, Q / 4, Q * 7 / 2, Q / 4, Q / 4, Q / 3, Q / 3, Q / 3, Q * 11 / 2}},
      // The gate shortens the sound, not the beat.
      {"", "q50 c4 q100 d4", {}, {0, Q}, {Q / 2, Q}},
      // A chord keeps its octave changes to itself; a tie lengthens every note of it.
      {"", "o4 [c e g > c]2 d", {60, 64, 67, 72, 62}, {0, 0, 0, 0, 2 * Q}, {}},
      {"", "q100 [c e]4^4 d", {}, {0, 0, 2 * Q}, {2 * Q, 2 * Q, Q}},
      {"define x c\n",
       "($x d)3 (c (e)2)2",
       {60, 62, 60, 62, 60, 62, 60, 64, 64, 60, 64, 64},
       {},
       {}},
      // A define continues on the lines under it and keeps the state it leaves behind.
      {"define up c\n  > d\n", "o4 $up c", {60, 74, 72}, {}, {}}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.body);
    const auto result =
        ReadScore(std::string(c.header) + "track name=T channel=1\n" + c.body + "\n");
    ASSERT_TRUE(result.errors.empty()) << result.errors.front();
    std::vector<int> keys, starts, lengths;
    for (const auto& n : result.score.tracks.at(0).notes) {
      keys.push_back(n.key);
      starts.push_back(n.tick);
      lengths.push_back(n.length);
    }
    // An empty list in a case is not checked.
    EXPECT_EQ(keys, c.keys.empty() ? keys : c.keys);
    EXPECT_EQ(starts, c.starts.empty() ? starts : c.starts);
    EXPECT_EQ(lengths, c.lengths.empty() ? lengths : c.lengths);
  }
}

TEST(NoteNotation, TempoChangesFromAnyTrackShapeTheTiming) {
  const auto result =
      ReadScore("tempo 120\ntrack name=A\n c1 t60 c1\ntrack name=B\n r1 r1 t240 r1\n");
  ASSERT_TRUE(result.errors.empty());
  const auto& s = result.score;
  EXPECT_EQ(s.EndTick(), 12 * Q);
  EXPECT_DOUBLE_EQ(s.SecondsAt(8 * Q), 6.0);        // 4 beats at 120, then 4 at 60
  EXPECT_DOUBLE_EQ(s.SecondsAt(s.EndTick()), 7.0);  // then 4 at 240
}

TEST(NoteNotation, MistakesAreReportedWithTheirLine) {
  const std::pair<const char*, const char*> cases[] = {
      {"meter 3/4\ntrack\n c4 c4 c4 |\n c4 c4 |\n", "line 4: track : bar check"},
      {"track\n c4 $nope\n", "no define named 'nope'"},
      {"define loop c $loop\ntrack\n $loop\n", "nest too deep"},
      {"track\n (c d\n", "'(' without its ')'"},
      {"track\n o9 b\n", "MIDI range"},
      {"track program=kazoo\n c\n", "kazoo"},
      {"track\n c w\n", "unexpected 'w'"}};
  for (const auto& [text, message] : cases) {
    const auto result = ReadScore(text);
    ASSERT_FALSE(result.errors.empty()) << text;
    EXPECT_NE(result.errors.front().find(message), std::string::npos) << result.errors.front();
  }
}

// Every note of every part reads back with its key, start, end, velocity and channel; a long
// rest before the drum needs a three-byte delta time.
TEST(MidiFileWriter, WritesAFormat1FileThatReadsBackNoteForNote) {
  const auto result = ReadScore(
      "title Test\ntempo 90\nmeter 3/4\n"
      "track name=Tune channel=3 program=flute volume=77 pan=10\n q100 v90 c4 e8 g8 t180 @timpani "
      "[c e]2\n"
      "track name=Drums channel=10\n r1 r1 r1 r1 r1 r1 r1 r1 r1 K\n");
  ASSERT_TRUE(result.errors.empty());
  std::string why;
  const auto file = test::ReadMidi(WriteMidiFile(result.score), &why);
  ASSERT_TRUE(file) << why;
  EXPECT_EQ(file->format, 1);
  EXPECT_EQ(file->division, Q);
  ASSERT_EQ(file->tracks.size(), 3u);  // conductor + two parts
  for (size_t t = 0; t < 3; ++t) {
    EXPECT_TRUE(file->tracks[t].endsWithEndOfTrack);
    if (t == 0) continue;
    std::vector<std::array<int, 5>> read, written;  // key, on, off, velocity, channel
    const Track& part = result.score.tracks[t - 1];
    for (const auto& n : part.notes)
      written.push_back({n.key, n.tick, n.tick + n.length, n.velocity, part.channel});
    for (const auto& e : file->tracks[t].events) {
      if (e.Kind() == 0x90 && e.data2 > 0)
        read.push_back({e.data1, e.tick, -1, e.data2, e.Channel()});
      if (e.Kind() == 0x80 || (e.Kind() == 0x90 && e.data2 == 0))
        for (auto& n : read)
          if (n[0] == e.data1 && n[2] < 0) {
            n[2] = e.tick;
            break;
          }
    }
    EXPECT_EQ(read, written);
  }
  std::vector<int> programs;  // the track's own, then a change inside it
  for (const auto& e : file->tracks[1].events)
    if (e.Kind() == 0xC0) programs.push_back(e.data1);
  EXPECT_EQ(programs, (std::vector<int>{73, 47}));
  EXPECT_EQ(result.score.tracks[1].notes.at(0).tick, 9 * 4 * Q);
}

}  // namespace
}  // namespace qb::music
