// A small, independent Standard MIDI File reader for checking the generated music.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace qb::test {

struct MidiEvent {
  int tick = 0;    // absolute
  int status = 0;  // 0x80..0xEF channel messages, 0xFF meta
  int data1 = 0;   // key / controller / program, or the meta type
  int data2 = 0;   // velocity / value
  int Channel() const { return (status & 0x0F) + 1; }
  int Kind() const { return status & 0xF0; }
};

struct MidiTrack {
  std::vector<MidiEvent> events;
  bool endsWithEndOfTrack = false;
};

struct MidiFile {
  int format = 0;
  int division = 0;  // ticks per quarter note
  std::vector<MidiTrack> tracks;
};

// Nothing, with the reason in `why`, when the bytes are not a well-formed file.
std::optional<MidiFile> ReadMidi(const std::vector<uint8_t>& bytes, std::string* why = nullptr);

}  // namespace qb::test
