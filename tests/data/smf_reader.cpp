// Standard MIDI File reader for the tests: chunks, delta times, running status and meta events.
#include "smf_reader.h"

#include <cstring>

namespace qb::test {
namespace {

// Reads bytes up to `end`; reading past it clears `ok`.
struct Cursor {
  const std::vector<uint8_t>& b;
  size_t at, end;
  bool ok = true;
  int Byte() { return at < end ? b[at++] : (ok = false, 0); }
  uint32_t Big(int count) {
    uint32_t v = 0;
    while (count-- > 0) v = (v << 8) | static_cast<uint32_t>(Byte());
    return v;
  }
  uint32_t VariableLength() {
    uint32_t v = 0;
    for (int i = 0; i < 4; ++i) {
      const int c = Byte();
      v = (v << 7) | (c & 0x7F);
      if (!(c & 0x80)) return v;
    }
    ok = false;
    return v;
  }
};

}  // namespace

std::optional<MidiFile> ReadMidi(const std::vector<uint8_t>& bytes, std::string* why) {
  auto fail = [&](const std::string& reason) -> std::optional<MidiFile> {
    if (why) *why = reason;
    return std::nullopt;
  };
  Cursor header{bytes, 4, bytes.size()};
  if (bytes.size() < 14 || std::memcmp(bytes.data(), "MThd", 4) != 0 || header.Big(4) != 6)
    return fail("no MThd header");
  MidiFile file;
  file.format = static_cast<int>(header.Big(2));
  const uint32_t trackCount = header.Big(2);
  file.division = static_cast<int>(header.Big(2));
  for (size_t n = 0, at = 14; n < trackCount; ++n) {
    if (at + 8 > bytes.size() || std::memcmp(bytes.data() + at, "MTrk", 4) != 0)
      return fail("track " + std::to_string(n) + ": no MTrk");
    Cursor c{bytes, at + 4, bytes.size()};
    const size_t end = at + 8 + c.Big(4);
    if (end > bytes.size()) return fail("track runs past the end of the file");
    c.end = at = end;
    MidiTrack& track = file.tracks.emplace_back();
    int tick = 0, running = 0;
    while (c.ok && c.at < c.end && !track.endsWithEndOfTrack) {
      MidiEvent& e = track.events.emplace_back();
      e.tick = tick += static_cast<int>(c.VariableLength());
      int first = c.Byte();
      if (first == 0xFF) {
        e.status = 0xFF;
        e.data1 = c.Byte();
        for (uint32_t size = c.VariableLength(); size > 0; --size) c.Byte();
        track.endsWithEndOfTrack = e.data1 == 0x2F && c.at == c.end;
        continue;
      }
      if (first & 0x80) {
        running = first;
        first = c.Byte();
      }
      e.status = running;
      e.data1 = first;
      if ((running & 0xF0) != 0xC0 && (running & 0xF0) != 0xD0) e.data2 = c.Byte();
    }
    if (!c.ok) return fail("track " + std::to_string(n) + " is cut short");
  }
  return file;
}

}  // namespace qb::test
