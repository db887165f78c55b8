// Build-time program: compiles one note-notation source into a Standard MIDI File and prints
// its length.
#include <cstdio>
#include <fstream>
#include <iostream>
#include <sstream>

#include "midi_file.h"
#include "score_reader.h"

int main(int argc, char** argv) {
  if (argc != 3) {
    std::cerr << "usage: quorbit-make-music SOURCE.notes OUT.mid\n";
    return 2;
  }
  std::ifstream in(argv[1]);
  if (!in) {
    std::cerr << argv[1] << ": cannot read\n";
    return 1;
  }
  std::stringstream text;
  text << in.rdbuf();
  const auto result = qb::music::ReadScore(text.str());
  for (const auto& e : result.errors) std::cerr << argv[1] << ": " << e << '\n';
  if (!result.errors.empty()) return 1;
  const auto bytes = qb::music::WriteMidiFile(result.score);
  std::ofstream out(argv[2], std::ios::binary);
  out.write(reinterpret_cast<const char*>(bytes.data()),
            static_cast<std::streamsize>(bytes.size()));
  if (!out) {
    std::cerr << argv[2] << ": cannot write\n";
    return 1;
  }
  const auto& score = result.score;
  // Parts that end at different places are almost always a miscounted bar.
  for (const auto& track : score.tracks)
    if (track.endTick != score.EndTick())
      std::cerr << argv[1] << ": warning: track " << track.name << " ends "
                << score.EndTick() - track.endTick << " ticks before the longest\n";
  std::printf("%s: %zu tracks, %.1f s\n", argv[2], score.tracks.size(),
              score.SecondsAt(score.EndTick()));
  return 0;
}
