// Standard MIDI File reader for the tests: chunks, delta times, running status, meta and sysex.
#include "smf_reader.h"

#include <algorithm>
#include <cstring>
#include <map>

namespace qb::test {
namespace {

struct Cursor {
  const std::vector<uint8_t>& b;
  size_t at;
  size_t end;
  bool ok = true;
  int Byte() {
    if (at >= end) {
      ok = false;
      return 0;
    }
    return b[at++];
  }
  uint32_t Big(int count) {
    uint32_t v = 0;
    for (int i = 0; i < count; ++i) v = (v << 8) | static_cast<uint32_t>(Byte());
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

int MidiFile::EndTick() const {
  int end = 0;
  for (const auto& t : tracks)
    if (!t.events.empty()) end = std::max(end, t.events.back().tick);
  return end;
}

double MidiFile::Seconds() const {
  std::map<int, double> microsPerQuarter{{0, 500000}};
  for (const auto& t : tracks)
    for (const auto& e : t.events)
      if (e.status == 0xFF && e.data1 == 0x51 && e.meta.size() == 3)
        microsPerQuarter[e.tick] = (e.meta[0] << 16) | (e.meta[1] << 8) | e.meta[2];
  const int end = EndTick();
  double seconds = 0;
  for (auto it = microsPerQuarter.begin(); it != microsPerQuarter.end() && it->first < end; ++it) {
    const auto next = std::next(it);
    const int until = next == microsPerQuarter.end() ? end : std::min(end, next->first);
    seconds += (until - it->first) * it->second / 1e6 / division;
  }
  return seconds;
}

std::optional<MidiFile> ReadMidi(const std::vector<uint8_t>& bytes, std::string* why) {
  auto fail = [&](const std::string& reason) -> std::optional<MidiFile> {
    if (why) *why = reason;
    return std::nullopt;
  };
  if (bytes.size() < 14 || std::memcmp(bytes.data(), "MThd", 4) != 0) return fail("no MThd");
  Cursor header{bytes, 4, bytes.size()};
  if (header.Big(4) != 6) return fail("header length is not 6");
  MidiFile file;
  file.format = static_cast<int>(header.Big(2));
  const uint32_t trackCount = header.Big(2);
  file.division = static_cast<int>(header.Big(2));
  if (file.division <= 0 || file.division >= 0x8000) return fail("unsupported division");
  size_t at = 14;
  for (uint32_t n = 0; n < trackCount; ++n) {
    if (at + 8 > bytes.size() || std::memcmp(bytes.data() + at, "MTrk", 4) != 0)
      return fail("track " + std::to_string(n) + ": no MTrk");
    Cursor c{bytes, at + 4, bytes.size()};
    const uint32_t length = c.Big(4);
    if (at + 8 + length > bytes.size()) return fail("track runs past the end of the file");
    c.end = at + 8 + length;
    MidiTrack track;
    int tick = 0, running = 0;
    while (c.ok && c.at < c.end) {
      tick += static_cast<int>(c.VariableLength());
      MidiEvent e;
      e.tick = tick;
      int first = c.Byte();
      if (first == 0xFF) {
        e.status = 0xFF;
        e.data1 = c.Byte();
        const uint32_t size = c.VariableLength();
        for (uint32_t i = 0; i < size; ++i) e.meta.push_back(static_cast<uint8_t>(c.Byte()));
        if (e.data1 == 0x2F) {
          track.endsWithEndOfTrack = c.at == c.end;
          track.events.push_back(e);
          break;
        }
      } else if (first == 0xF0 || first == 0xF7) {
        const uint32_t size = c.VariableLength();
        c.at += size;
        continue;
      } else {
        if (first & 0x80) {
          running = first;
          first = c.Byte();
        } else if (!running) {
          return fail("data byte without a status");
        }
        e.status = running;
        e.data1 = first;
        const int kind = running & 0xF0;
        if (kind != 0xC0 && kind != 0xD0) e.data2 = c.Byte();
      }
      track.events.push_back(e);
    }
    if (!c.ok) return fail("track " + std::to_string(n) + " is cut short");
    file.tracks.push_back(std::move(track));
    at += 8 + length;
  }
  return file;
}

}  // namespace qb::test
