// The note notation: directives (title, tempo, meter, define, track) and the note bodies under
// them, compiled into timed notes with repeats, macros, chords, ties and bar checks.
#include "score_reader.h"

#include <algorithm>
#include <cctype>
#include <map>
#include <sstream>

#include "gm_instruments.h"

namespace qb::music {
namespace {

// Text of a define or track body, with the source line of every character for messages.
struct Body {
  std::string text;
  std::vector<int> lineOf;
  void Append(const std::string& line, int lineNumber) {
    text += line + ' ';
    lineOf.insert(lineOf.end(), line.size() + 1, lineNumber);
  }
};

struct Failure {
  int line;
  std::string message;
};

// Uppercase letters stand for the General MIDI percussion keys used on channel 10.
int DrumKey(char c) {
  switch (c) {
    case 'K':
      return 36;  // bass drum
    case 'X':
      return 37;  // side stick
    case 'S':
      return 38;  // snare
    case 'P':
      return 39;  // hand clap
    case 'H':
      return 42;  // closed hi-hat
    case 'T':
      return 45;  // low tom
    case 'O':
      return 46;  // open hi-hat
    case 'M':
      return 47;  // middle tom
    case 'C':
      return 49;  // crash cymbal
    case 'U':
      return 50;  // high tom
    case 'R':
      return 51;  // ride cymbal
    case 'B':
      return 53;  // ride bell
    case 'N':
      return 54;  // tambourine
    case 'Z':
      return 55;  // splash cymbal
    case 'W':
      return 56;  // cowbell
    case 'A':
      return 57;  // second crash cymbal
    case 'F':
      return 75;  // claves
    case 'G':
      return 70;  // maracas
    default:
      return -1;
  }
}

int NaturalKey(char c) {
  static constexpr int kSteps[] = {9, 11, 0, 2, 4, 5, 7};  // a b c d e f g
  return kSteps[c - 'a'];
}

class BodyCompiler {
 public:
  BodyCompiler(const std::map<std::string, Body>& macros, int barTicks, Track& track,
               std::vector<Tempo>& tempos)
      : macros_(macros), barTicks_(barTicks), track_(track), tempos_(tempos) {}

  void Compile(const Body& body) {
    Range(body, 0, body.text.size(), 0);
    for (size_t i = 0; i < track_.notes.size(); ++i)
      track_.notes[i].length = std::max(1, track_.notes[i].length * gates_[i] / 100);
    track_.endTick = tick_;
  }

 private:
  [[noreturn]] void Fail(const Body& b, size_t pos, const std::string& message) {
    throw Failure{b.lineOf.empty() ? 0 : b.lineOf[std::min(pos, b.lineOf.size() - 1)], message};
  }

  bool ReadNumber(const Body& b, size_t& pos, int& out) {
    if (pos >= b.text.size() || !std::isdigit(static_cast<unsigned char>(b.text[pos])))
      return false;
    long value = 0;
    while (pos < b.text.size() && std::isdigit(static_cast<unsigned char>(b.text[pos]))) {
      value = value * 10 + (b.text[pos++] - '0');
      if (value > 100000) Fail(b, pos, "number too large");
    }
    out = static_cast<int>(value);
    return true;
  }

  int RequireNumber(const Body& b, size_t& pos, int low, int high, const char* what) {
    int value = 0;
    if (!ReadNumber(b, pos, value)) Fail(b, pos, std::string("a number must follow ") + what);
    if (value < low || value > high)
      Fail(b, pos, std::string(what) + " " + std::to_string(value) + " out of range");
    return value;
  }

  // A length: a note value (1, 2, 4, 8, 16, 32; 3, 6, 12, 24 for triplets), or the default when
  // none is written, then any number of dots.
  int ReadLength(const Body& b, size_t& pos, int fallback) {
    int length = fallback, value = 0;
    if (ReadNumber(b, pos, value)) {
      if (value <= 0 || kTicksPerWhole % value != 0)
        Fail(b, pos, "note value " + std::to_string(value) + " does not divide a whole note");
      length = kTicksPerWhole / value;
    }
    for (int add = length / 2; pos < b.text.size() && b.text[pos] == '.'; add /= 2, ++pos) {
      if (add == 0) Fail(b, pos, "too many dots");
      length += add;
    }
    return length;
  }

  int ReadKey(const Body& b, size_t& pos, int octave) {
    const char c = b.text[pos++];
    int key = DrumKey(c);
    if (key < 0) {
      key = (octave + 1) * 12 + NaturalKey(c);
      for (; pos < b.text.size() && (b.text[pos] == '+' || b.text[pos] == '-'); ++pos)
        key += b.text[pos] == '+' ? 1 : -1;
    }
    if (key < 0 || key > 127) Fail(b, pos, "note outside the MIDI range");
    return key;
  }

  void Emit(const std::vector<int>& keys, int length) {
    last_.clear();
    for (int key : keys) {
      last_.push_back(track_.notes.size());
      track_.notes.push_back({tick_, length, key, velocity_});
      gates_.push_back(gate_);
    }
    tick_ += length;
  }

  static bool IsNoteLetter(char c) { return (c >= 'a' && c <= 'g') || DrumKey(c) >= 0; }

  size_t MatchingClose(const Body& b, size_t open, size_t end) {
    int depth = 0;
    for (size_t i = open; i < end; ++i) {
      if (b.text[i] == '(') ++depth;
      if (b.text[i] == ')' && --depth == 0) return i;
    }
    Fail(b, open, "'(' without its ')'");
  }

  void Chord(const Body& b, size_t& pos) {
    std::vector<int> keys;
    int octave = octave_;  // octave changes inside a chord end with it
    while (true) {
      if (pos >= b.text.size()) Fail(b, pos, "'[' without its ']'");
      const char c = b.text[pos];
      if (c == ']') break;
      if (std::isspace(static_cast<unsigned char>(c))) {
        ++pos;
      } else if (c == '>' || c == '<') {
        octave += c == '>' ? 1 : -1;
        ++pos;
      } else if (c == 'o') {
        ++pos;
        octave = RequireNumber(b, pos, 0, 9, "o");
      } else if (IsNoteLetter(c)) {
        keys.push_back(ReadKey(b, pos, octave));
      } else {
        Fail(b, pos, std::string("'") + c + "' inside a chord");
      }
    }
    ++pos;
    if (keys.empty()) Fail(b, pos, "empty chord");
    Emit(keys, ReadLength(b, pos, length_));
  }

  void Range(const Body& b, size_t pos, size_t end, int depth) {
    if (depth > 16) Fail(b, pos, "macros or repeats nest too deep (does a macro use itself?)");
    while (pos < end) {
      const char c = b.text[pos];
      if (std::isspace(static_cast<unsigned char>(c))) {
        ++pos;
      } else if (IsNoteLetter(c)) {
        const int key = ReadKey(b, pos, octave_);
        Emit({key}, ReadLength(b, pos, length_));
      } else if (c == 'r') {
        ++pos;
        tick_ += ReadLength(b, pos, length_);
        last_.clear();
      } else if (c == '^') {
        ++pos;
        if (last_.empty()) Fail(b, pos, "'^' (tie) with no note before it");
        const int extra = ReadLength(b, pos, length_);
        for (size_t i : last_) track_.notes[i].length += extra;
        tick_ += extra;
      } else if (c == 'o') {
        ++pos;
        octave_ = RequireNumber(b, pos, 0, 9, "o");
      } else if (c == '>' || c == '<') {
        octave_ += c == '>' ? 1 : -1;
        if (octave_ < 0 || octave_ > 9) Fail(b, pos, "octave out of range");
        ++pos;
      } else if (c == 'l') {
        ++pos;
        if (pos >= end || !std::isdigit(static_cast<unsigned char>(b.text[pos])))
          Fail(b, pos, "a note value must follow l");
        length_ = ReadLength(b, pos, length_);
      } else if (c == 'v') {
        ++pos;
        velocity_ = RequireNumber(b, pos, 1, 127, "v");
      } else if (c == 'q') {
        ++pos;
        gate_ = RequireNumber(b, pos, 1, 100, "q");
      } else if (c == 't') {
        ++pos;
        tempos_.push_back({tick_, static_cast<double>(RequireNumber(b, pos, 20, 400, "t"))});
      } else if (c == '@') {
        ++pos;
        size_t stop = pos;
        while (stop < end &&
               (std::isalnum(static_cast<unsigned char>(b.text[stop])) || b.text[stop] == '_'))
          ++stop;
        const std::string name = b.text.substr(pos, stop - pos);
        const auto program = InstrumentProgram(name);
        int number = -1;
        if (!program && !name.empty() &&
            std::all_of(name.begin(), name.end(), [](char d) { return std::isdigit(d); }))
          number = std::stoi(name);
        if (!program && (number < 0 || number > 127))
          Fail(b, pos, "unknown instrument '" + name + "'");
        track_.programChanges.push_back({tick_, program ? *program : number});
        pos = stop;
      } else if (c == '[') {
        ++pos;
        Chord(b, pos);
      } else if (c == '(') {
        const size_t close = MatchingClose(b, pos, end);
        size_t after = close + 1;
        int times = 2;
        if (after < end && std::isdigit(static_cast<unsigned char>(b.text[after])))
          times = RequireNumber(b, after, 1, 64, "a repeat count");
        for (int i = 0; i < times; ++i) Range(b, pos + 1, close, depth + 1);
        pos = after;
      } else if (c == ')') {
        Fail(b, pos, "')' without its '('");
      } else if (c == '$') {
        size_t stop = ++pos;
        while (stop < end &&
               (std::isalnum(static_cast<unsigned char>(b.text[stop])) || b.text[stop] == '_'))
          ++stop;
        const std::string name = b.text.substr(pos, stop - pos);
        const auto macro = macros_.find(name);
        if (macro == macros_.end()) Fail(b, pos, "no define named '" + name + "'");
        try {
          Range(macro->second, 0, macro->second.text.size(), depth + 1);
        } catch (const Failure& inner) {
          throw Failure{b.lineOf[pos], inner.message + " (in $" + name + " at line " +
                                           std::to_string(inner.line) + ")"};
        }
        pos = stop;
      } else if (c == '|') {
        if (tick_ % barTicks_ != 0)
          Fail(b, pos,
               "bar check: " + std::to_string(tick_ % barTicks_) + " ticks into bar " +
                   std::to_string(tick_ / barTicks_ + 1));
        ++pos;
      } else {
        Fail(b, pos, std::string("unexpected '") + c + "'");
      }
    }
  }

  const std::map<std::string, Body>& macros_;
  int barTicks_;
  Track& track_;
  std::vector<Tempo>& tempos_;
  std::vector<int> gates_;    // articulation of each note, percent of its written length
  std::vector<size_t> last_;  // the notes a tie extends
  int tick_ = 0, octave_ = 4, length_ = kTicksPerQuarter, velocity_ = 100, gate_ = 90;
};

// Reads "key=value" settings of a track line.
std::string ApplyTrackSetting(Track& track, const std::string& key, const std::string& value) {
  if (key == "name") {
    track.name = value;
    return {};
  }
  if (key == "program") {
    if (const auto program = InstrumentProgram(value)) {
      track.program = *program;
      return {};
    }
  }
  int number = 0;
  std::istringstream in(value);
  if (!(in >> number) || !in.eof()) return "bad value '" + value + "' for " + key;
  auto set = [&](int& field, int low, int high) -> std::string {
    if (number < low || number > high) return key + " out of range";
    field = number;
    return {};
  };
  if (key == "channel") return set(track.channel, 1, 16);
  if (key == "program") return set(track.program, 0, 127);
  if (key == "volume") return set(track.volume, 0, 127);
  if (key == "pan") return set(track.pan, 0, 127);
  if (key == "reverb") return set(track.reverb, 0, 127);
  if (key == "chorus") return set(track.chorus, 0, 127);
  return "unknown track setting '" + key + "'";
}

bool IsDirective(const std::string& word) {
  return word == "title" || word == "tempo" || word == "meter" || word == "define" ||
         word == "track";
}

}  // namespace

ScoreResult ReadScore(std::string_view text) {
  ScoreResult out;
  Score& score = out.score;
  std::map<std::string, Body> macros;
  struct PendingTrack {
    Track track;
    Body body;
    int line;
  };
  std::vector<PendingTrack> tracks;
  // The body that note lines are added to; reset by every directive, before `tracks` grows.
  Body* current = nullptr;
  double bpm = 120;
  auto fail = [&](int line, const std::string& why) {
    out.errors.push_back("line " + std::to_string(line) + ": " + why);
  };

  std::istringstream lines{std::string(text)};
  std::string line;
  for (int number = 1; std::getline(lines, line); ++number) {
    if (const auto hash = line.find('#'); hash != std::string::npos) line.erase(hash);
    std::istringstream words(line);
    std::string word;
    if (!(words >> word)) continue;
    if (!IsDirective(word)) {
      if (!current)
        fail(number, "notes outside a track or define");
      else
        current->Append(line, number);
      continue;
    }
    std::string rest;
    std::getline(words >> std::ws, rest);
    current = nullptr;
    if (word == "title") {
      score.title = rest;
    } else if (word == "tempo") {
      std::istringstream in(rest);
      if (!(in >> bpm) || bpm < 20 || bpm > 400) fail(number, "tempo wants 20..400");
    } else if (word == "meter") {
      char slash = 0;
      std::istringstream in(rest);
      if (!(in >> score.meterTop >> slash >> score.meterBottom) || slash != '/' ||
          score.meterTop < 1 || score.meterTop > 32 ||
          (score.meterBottom != 2 && score.meterBottom != 4 && score.meterBottom != 8))
        fail(number, "meter wants N/2, N/4 or N/8");
    } else if (word == "define") {
      std::istringstream in(rest);
      std::string name, body;
      in >> name;
      std::getline(in, body);
      if (name.empty() || macros.count(name)) {
        fail(number, name.empty() ? "define without a name" : "'" + name + "' defined twice");
        continue;
      }
      current = &macros[name];
      current->Append(body, number);
    } else {  // track
      PendingTrack pending{{}, {}, number};
      std::istringstream in(rest);
      std::string setting;
      while (in >> setting) {
        const auto eq = setting.find('=');
        const std::string why =
            eq == std::string::npos
                ? "expected key=value, got '" + setting + "'"
                : ApplyTrackSetting(pending.track, setting.substr(0, eq), setting.substr(eq + 1));
        if (!why.empty()) fail(number, why);
      }
      tracks.push_back(std::move(pending));
      current = &tracks.back().body;
    }
  }
  score.tempos.push_back({0, bpm});
  const int barTicks = kTicksPerWhole * score.meterTop / score.meterBottom;
  for (auto& pending : tracks) {
    std::vector<Tempo> tempos;
    try {
      BodyCompiler(macros, barTicks, pending.track, tempos).Compile(pending.body);
    } catch (const Failure& f) {
      fail(f.line, "track " + pending.track.name + ": " + f.message);
    }
    score.tempos.insert(score.tempos.end(), tempos.begin(), tempos.end());
    score.tracks.push_back(std::move(pending.track));
  }
  std::stable_sort(score.tempos.begin(), score.tempos.end(),
                   [](const Tempo& a, const Tempo& b) { return a.tick < b.tick; });
  if (score.tracks.empty()) fail(0, "no track");
  return out;
}

}  // namespace qb::music
