// A piece of music as timed events: what the note notation compiles to and the MIDI writer reads.
#pragma once

#include <string>
#include <vector>

namespace qb::music {

inline constexpr int kTicksPerQuarter = 480;
inline constexpr int kTicksPerWhole = 4 * kTicksPerQuarter;

struct Note {
  int tick = 0;    // start
  int length = 0;  // ticks until the note is released
  int key = 60;    // MIDI key number, 60 = middle C
  int velocity = 100;
};

struct ProgramChange {
  int tick = 0;
  int program = 0;
};

struct Tempo {
  int tick = 0;
  double bpm = 120;  // quarter notes per minute
};

struct Track {
  std::string name;
  int channel = 1;  // 1..16; 10 is the General MIDI percussion channel
  int program = 0;  // General MIDI program, 0..127
  int volume = 100;
  int pan = 64;  // 0 left .. 64 centre .. 127 right
  int reverb = 40;
  int chorus = 0;
  std::vector<Note> notes;
  std::vector<ProgramChange> programChanges;  // changes after the start
  int endTick = 0;                            // where the track's last note or rest ends
};

struct Score {
  std::string title;
  int meterTop = 4, meterBottom = 4;
  std::vector<Tempo> tempos;  // sorted by tick; the first is at tick 0
  std::vector<Track> tracks;

  int EndTick() const;
  // Seconds from the start to the given tick, following the tempo changes.
  double SecondsAt(int tick) const;
};

}  // namespace qb::music
