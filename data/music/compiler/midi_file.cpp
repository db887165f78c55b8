// Standard MIDI File writer: header chunk, conductor track (name, meter, tempi), part tracks.
#include "midi_file.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace qb::music {
namespace {

struct Event {
  int tick;
  int order;  // at one tick: settings first, then note-offs, then note-ons
  std::vector<uint8_t> bytes;
};

void PutBigEndian(std::vector<uint8_t>& out, uint32_t value, int bytes) {
  for (int i = bytes - 1; i >= 0; --i) out.push_back(static_cast<uint8_t>(value >> (8 * i)));
}

void PutVariableLength(std::vector<uint8_t>& out, uint32_t value) {
  uint8_t groups[5];
  int count = 0;
  do {
    groups[count++] = value & 0x7F;
    value >>= 7;
  } while (value > 0);
  while (count > 1) out.push_back(groups[--count] | 0x80);
  out.push_back(groups[0]);
}

Event Meta(int tick, uint8_t type, const std::vector<uint8_t>& data) {
  Event e{tick, 0, {0xFF, type}};
  PutVariableLength(e.bytes, static_cast<uint32_t>(data.size()));
  e.bytes.insert(e.bytes.end(), data.begin(), data.end());
  return e;
}

Event TextMeta(int tick, uint8_t type, const std::string& text) {
  return Meta(tick, type, std::vector<uint8_t>(text.begin(), text.end()));
}

// Sorts the events, turns them into delta-timed bytes and closes the chunk with End of Track.
void PutTrack(std::vector<uint8_t>& out, std::vector<Event> events, int endTick) {
  std::stable_sort(events.begin(), events.end(), [](const Event& a, const Event& b) {
    return a.tick != b.tick ? a.tick < b.tick : a.order < b.order;
  });
  std::vector<uint8_t> data;
  int now = 0;
  for (const auto& e : events) {
    PutVariableLength(data, static_cast<uint32_t>(e.tick - now));
    now = e.tick;
    data.insert(data.end(), e.bytes.begin(), e.bytes.end());
  }
  PutVariableLength(data, static_cast<uint32_t>(std::max(0, endTick - now)));
  data.insert(data.end(), {0xFF, 0x2F, 0x00});
  out.insert(out.end(), {'M', 'T', 'r', 'k'});
  PutBigEndian(out, static_cast<uint32_t>(data.size()), 4);
  out.insert(out.end(), data.begin(), data.end());
}

std::vector<Event> ConductorEvents(const Score& score) {
  std::vector<Event> events;
  if (!score.title.empty()) events.push_back(TextMeta(0, 0x03, score.title));
  int denominatorPower = 0;
  while ((1 << denominatorPower) < score.meterBottom) ++denominatorPower;
  events.push_back(
      Meta(0, 0x58,
           {static_cast<uint8_t>(score.meterTop), static_cast<uint8_t>(denominatorPower), 24, 8}));
  for (const auto& t : score.tempos) {
    const auto micros = static_cast<uint32_t>(std::lround(60'000'000.0 / t.bpm));
    events.push_back(Meta(t.tick, 0x51,
                          {static_cast<uint8_t>(micros >> 16), static_cast<uint8_t>(micros >> 8),
                           static_cast<uint8_t>(micros)}));
  }
  return events;
}

std::vector<Event> PartEvents(const Track& track) {
  const uint8_t ch = static_cast<uint8_t>(track.channel - 1);
  auto control = [&](uint8_t number, int value) {
    return Event{0, 0, {static_cast<uint8_t>(0xB0 | ch), number, static_cast<uint8_t>(value)}};
  };
  std::vector<Event> events;
  if (!track.name.empty()) events.push_back(TextMeta(0, 0x03, track.name));
  events.push_back(
      Event{0, 0, {static_cast<uint8_t>(0xC0 | ch), static_cast<uint8_t>(track.program)}});
  events.push_back(control(7, track.volume));
  events.push_back(control(10, track.pan));
  events.push_back(control(91, track.reverb));
  events.push_back(control(93, track.chorus));
  for (const auto& p : track.programChanges)
    events.push_back(
        Event{p.tick, 0, {static_cast<uint8_t>(0xC0 | ch), static_cast<uint8_t>(p.program)}});
  for (const auto& n : track.notes) {
    const auto key = static_cast<uint8_t>(n.key);
    events.push_back(
        Event{n.tick, 2, {static_cast<uint8_t>(0x90 | ch), key, static_cast<uint8_t>(n.velocity)}});
    events.push_back(Event{n.tick + n.length, 1, {static_cast<uint8_t>(0x80 | ch), key, 0}});
  }
  return events;
}

}  // namespace

std::vector<uint8_t> WriteMidiFile(const Score& score) {
  std::vector<uint8_t> out{'M', 'T', 'h', 'd'};
  PutBigEndian(out, 6, 4);
  PutBigEndian(out, 1, 2);  // format 1: simultaneous tracks
  PutBigEndian(out, static_cast<uint32_t>(score.tracks.size() + 1), 2);
  PutBigEndian(out, kTicksPerQuarter, 2);
  const int end = score.EndTick();
  PutTrack(out, ConductorEvents(score), end);
  for (const auto& track : score.tracks) {
    int trackEnd = track.endTick;
    for (const auto& n : track.notes) trackEnd = std::max(trackEnd, n.tick + n.length);
    PutTrack(out, PartEvents(track), trackEnd);
  }
  return out;
}

}  // namespace qb::music
