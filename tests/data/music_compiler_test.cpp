// The note notation compiler and the MIDI file writer: pitches, lengths, repeats, defines,
// chords, ties, checks and messages, and a written file read back by an independent reader.
#include <gtest/gtest.h>

#include "midi_file.h"
#include "score_reader.h"
#include "smf_reader.h"

namespace qb::music {
namespace {

constexpr int Q = kTicksPerQuarter;

Track Compile(const std::string& body, const std::string& header = "") {
  const auto result = ReadScore(header + "track name=T channel=1\n" + body + "\n");
  EXPECT_TRUE(result.errors.empty()) << result.errors.front();
  return result.score.tracks.empty() ? Track{} : result.score.tracks[0];
}

std::vector<int> Keys(const Track& t) {
  std::vector<int> keys;
  for (const auto& n : t.notes) keys.push_back(n.key);
  return keys;
}

std::vector<int> Starts(const Track& t) {
  std::vector<int> starts;
  for (const auto& n : t.notes) starts.push_back(n.tick);
  return starts;
}

TEST(NoteNotation, PitchesOctavesAndAccidentals) {
  EXPECT_EQ(Keys(Compile("o4 c d e f g a b > c")),
            (std::vector<int>{60, 62, 64, 65, 67, 69, 71, 72}));
  EXPECT_EQ(Keys(Compile("o4 c+ d- e-- b+ < c o0 c o9 g")),
            (std::vector<int>{61, 61, 62, 72, 48, 12, 127}));
  EXPECT_EQ(Keys(Compile("K S H C")), (std::vector<int>{36, 38, 42, 49}));
}

TEST(NoteNotation, LengthsDotsTripletsRestsAndTies) {
  const auto t = Compile("q100 c4 c8 c8. c16 c2.. r4 l16 c c l12 c c c c1^4^8");
  EXPECT_EQ(Starts(t),
            (std::vector<int>{0, 480, 720, 1080, 1200, 3360, 3480, 3600, 3760, 3920, 4080}));
  EXPECT_EQ(t.notes[2].length, Q * 3 / 4);           // dotted eighth
  EXPECT_EQ(t.notes[4].length, Q * 7 / 2);           // double-dotted half
  EXPECT_EQ(t.notes[7].length, Q / 3);               // eighth-note triplet
  EXPECT_EQ(t.notes[10].length, Q * 4 + Q + Q / 2);  // tied on twice
  EXPECT_EQ(t.endTick, 4080 + 2640);
}

TEST(NoteNotation, GateShortensTheSoundButNotTheBeat) {
  const auto t = Compile("q50 c4 q100 d4");
  EXPECT_EQ(t.notes[0].length, Q / 2);
  EXPECT_EQ(t.notes[1].tick, Q);
  EXPECT_EQ(t.notes[1].length, Q);
}

TEST(NoteNotation, ChordsKeepTheirOctaveChangesToThemselves) {
  const auto t = Compile("o4 [c e g > c]2 d");
  EXPECT_EQ(Keys(t), (std::vector<int>{60, 64, 67, 72, 62}));
  EXPECT_EQ(Starts(t), (std::vector<int>{0, 0, 0, 0, 2 * Q}));
  const auto tied = Compile("q100 [c e]4^4 d");
  EXPECT_EQ(tied.notes[0].length, 2 * Q);
  EXPECT_EQ(tied.notes[1].length, 2 * Q);
}

TEST(NoteNotation, RepeatsAndDefinesExpandInPlace) {
  const auto t = Compile("($x d)3 (c (e)2)2", "define x c\n");
  EXPECT_EQ(Keys(t), (std::vector<int>{60, 62, 60, 62, 60, 62, 60, 64, 64, 60, 64, 64}));
  // A define continues on the lines under it and keeps the state it leaves behind.
  const auto multi = Compile("o4 $up c", "define up c\n  > d\n");
  EXPECT_EQ(Keys(multi), (std::vector<int>{60, 74, 72}));
}

TEST(NoteNotation, TempoChangesFromAnyTrackShapeTheTiming) {
  const auto result = ReadScore(
      "tempo 120\n"
      "track name=A\n c1 t60 c1\n"
      "track name=B\n r1 r1 t240 r1\n");
  ASSERT_TRUE(result.errors.empty());
  const auto& s = result.score;
  EXPECT_EQ(s.EndTick(), 12 * Q);
  EXPECT_DOUBLE_EQ(s.SecondsAt(4 * Q), 2.0);        // 4 beats at 120
  EXPECT_DOUBLE_EQ(s.SecondsAt(8 * Q), 6.0);        // then 4 at 60
  EXPECT_DOUBLE_EQ(s.SecondsAt(s.EndTick()), 7.0);  // then 4 at 240
}

TEST(NoteNotation, MistakesAreReportedWithTheirLine) {
  const std::pair<const char*, const char*> cases[] = {
      {"meter 3/4\ntrack\n c4 c4 c4 |\n c4 c4 |\n", "line 4: track : bar check"},
      {"track\n c4 $nope\n", "no define named 'nope'"},
      {"define loop c $loop\ntrack\n $loop\n", "nest too deep"},
      {"track\n c5 c7\n", "does not divide"},
      {"track\n (c d\n", "'(' without its ')'"},
      {"track\n [c e\n", "without its ']'"},
      {"track\n c ^4\n r ^4\n", "line 3"},
      {"track\n o9 b\n", "MIDI range"},
      {"track program=kazoo\n c\n", "kazoo"},
      {"c d e\n", "outside a track"},
      {"tempo 0\ntrack\n c\n", "tempo"},
      {"title nothing\n", "no track"},
      {"track\n c w\n", "unexpected 'w'"}};
  for (const auto& [text, message] : cases) {
    const auto result = ReadScore(text);
    ASSERT_FALSE(result.errors.empty()) << text;
    EXPECT_NE(result.errors.front().find(message), std::string::npos) << result.errors.front();
  }
}

TEST(MidiFileWriter, WritesAFormat1FileThatReadsBackNoteForNote) {
  const auto result = ReadScore(
      "title Test\ntempo 90\nmeter 3/4\n"
      "track name=Tune channel=3 program=flute volume=77 pan=10\n q100 v90 c4 e8 g8 t180 @timpani "
      "[c e]2\n"
      "track name=Drums channel=10\n K2. K4\n");
  ASSERT_TRUE(result.errors.empty());
  std::string why;
  const auto file = test::ReadMidi(WriteMidiFile(result.score), &why);
  ASSERT_TRUE(file) << why;
  EXPECT_EQ(file->format, 1);
  EXPECT_EQ(file->division, Q);
  ASSERT_EQ(file->tracks.size(), 3u);  // conductor + two parts
  for (const auto& t : file->tracks) EXPECT_TRUE(t.endsWithEndOfTrack);

  struct Sounding {
    int key, on, off, channel;
  };
  std::vector<Sounding> notes;
  std::vector<int> programs;  // the track's own, then a change inside it
  int volume = -1;
  for (const auto& e : file->tracks[1].events) {
    if (e.Kind() == 0xC0) programs.push_back(e.data1);
    if (e.Kind() == 0xB0 && e.data1 == 7) volume = e.data2;
    if (e.Kind() == 0x90 && e.data2 > 0) notes.push_back({e.data1, e.tick, -1, e.Channel()});
    if (e.Kind() == 0x80 || (e.Kind() == 0x90 && e.data2 == 0))
      for (auto& n : notes)
        if (n.key == e.data1 && n.off < 0) {
          n.off = e.tick;
          break;
        }
  }
  EXPECT_EQ(programs, (std::vector<int>{73, 47}));
  EXPECT_EQ(volume, 77);
  ASSERT_EQ(notes.size(), 5u);
  EXPECT_EQ(notes[0].channel, 3);
  EXPECT_EQ(notes[0].key, 60);
  EXPECT_EQ(notes[1].on, Q);
  EXPECT_EQ(notes[1].off, Q * 3 / 2);
  EXPECT_EQ(notes[3].on, 2 * Q);
  EXPECT_EQ(notes[4].off, 4 * Q);
  bool drumOnTen = false;
  for (const auto& e : file->tracks[2].events) drumOnTen |= e.Kind() == 0x90 && e.Channel() == 10;
  EXPECT_TRUE(drumOnTen);
  // 2 beats at 90 and 2 at 180.
  EXPECT_NEAR(file->Seconds(), 2 * 60.0 / 90 + 2 * 60.0 / 180, 1e-6);
  EXPECT_NEAR(file->Seconds(), result.score.SecondsAt(result.score.EndTick()), 1e-6);
}

TEST(MidiFileWriter, LongDeltaTimesUseSeveralBytes) {
  const auto result = ReadScore("tempo 60\ntrack\n r1 r1 r1 r1 r1 r1 r1 r1 r1 c\n");
  ASSERT_TRUE(result.errors.empty());
  const auto file = test::ReadMidi(WriteMidiFile(result.score));
  ASSERT_TRUE(file);
  int noteOn = -1;
  for (const auto& e : file->tracks[1].events)
    if (e.Kind() == 0x90) noteOn = e.tick;
  EXPECT_EQ(noteOn, 9 * 4 * Q);  // 17280 ticks needs a three-byte delta
}

}  // namespace
}  // namespace qb::music
