// The per-user settings: defaults on a first run, round trips, and damaged values that fall back
// one by one with a note each.
#include "core/settings.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <optional>

#include "support/recorder_host.h"

namespace qb::test {
namespace {

class MapStore : public SettingsStore {
 public:
  std::map<std::pair<std::string, std::string>, std::string> values;
  std::optional<std::string> Get(const std::string& section, const std::string& key) override {
    const auto it = values.find({section, key});
    if (it == values.end()) return std::nullopt;
    return it->second;
  }
  void Set(const std::string& section, const std::string& key, const std::string& value) override {
    values[{section, key}] = value;
  }
};

// A store as the game writes it, every value different from its default.
MapStore SavedStore() {
  MapStore s;
  s.values = {{{"HighestLevel", "0"}, "20"},
              {{"HighestLevel", "1"}, "7"},
              {{"HighestLevel", "2"}, "3"},
              {{"HighestLevel", "3"}, "2"},
              {{"Options", "Music"}, "False"},
              {{"Options", "Sound"}, "False"},
              {{"Options", "Scrolling"}, "True"},
              {{"Options", "SmartScrolling"}, "True"},
              {{"Options", "Replay"}, "False"},
              {{"Options", "Change"}, "False"},
              {{"Options", "StayPausedForTools"}, "True"},
              {{"CurrentSkill", "Skill"}, "2"}};
  return s;
}

// A game whose settings are all unlike the defaults and unlike SavedStore, so a load that
// forgets a value shows.
struct DirtyGame {
  RecorderHost host;
  Game g{host};
  DirtyGame() {
    for (int t = 0; t < 4; ++t) g.HighestLevel(t) = static_cast<int16_t>(11 + t);
    for (Option o : {OptMusic, OptSound, OptReplay, OptShowChange}) g.ui.OptionsChecked(o) = false;
    for (Option o : {OptFastScrolling, OptSmartScrolling}) g.ui.OptionsChecked(o) = true;
    g.CurrentSkill = 3;
  }
};

TEST(Settings, AFirstRunGivesTheDefaultsWithoutNotes) {
  DirtyGame d;
  MapStore empty;
  EXPECT_TRUE(LoadSettings(d.g, empty).empty());
  for (int t = 0; t < 4; ++t) EXPECT_EQ(d.g.HighestLevel(t), 1) << "tier " << t;
  for (Option o : {OptMusic, OptSound, OptReplay, OptShowChange})
    EXPECT_TRUE(d.g.ui.Option(o)) << o;
  for (Option o : {OptFastScrolling, OptSmartScrolling}) EXPECT_FALSE(d.g.ui.Option(o)) << o;
  EXPECT_EQ(d.g.CurrentSkill, 0);
}

TEST(Settings, SavedSettingsLoadBackAndAreWrittenAsTheGameWritesThem) {
  MapStore stored = SavedStore();
  DirtyGame first;
  EXPECT_TRUE(LoadSettings(first.g, stored).empty());
  EXPECT_EQ(first.g.HighestLevel(0), 20);
  EXPECT_EQ(first.g.HighestLevel(1), 7);
  EXPECT_FALSE(first.g.ui.Option(OptMusic));
  EXPECT_TRUE(first.g.ui.Option(OptSmartScrolling));
  EXPECT_EQ(first.g.CurrentSkill, 2);

  MapStore written;
  SaveSettings(first.g, written);
  EXPECT_EQ(written.values, stored.values);

  // And the other way round: the defaults survive a save and a load.
  RecorderHost host;
  Game fresh{host};
  MapStore empty;
  LoadSettings(fresh, empty);
  MapStore defaults;
  SaveSettings(fresh, defaults);
  EXPECT_EQ(defaults.values.at({"Options", "Music"}), "True");
  EXPECT_EQ(defaults.values.at({"Options", "Scrolling"}), "False");
  EXPECT_EQ(defaults.values.at({"HighestLevel", "3"}), "1");
  DirtyGame second;
  EXPECT_TRUE(LoadSettings(second.g, defaults).empty());
  EXPECT_TRUE(static_cast<const GameState&>(second.g) == static_cast<const GameState&>(fresh));
  EXPECT_TRUE(second.g.ui == fresh.ui);
}

TEST(Settings, BooleansAcceptAnyCaseAndNumbers) {
  const std::vector<std::pair<std::string, bool>> cases = {
      {"true", true}, {"TRUE", true}, {" False ", false}, {"0", false}, {"-1", true}, {"2", true}};
  for (const auto& [text, value] : cases) {
    SCOPED_TRACE(text);
    MapStore s = SavedStore();
    s.values[{"Options", "Sound"}] = text;
    DirtyGame d;
    EXPECT_TRUE(LoadSettings(d.g, s).empty());
    EXPECT_EQ(d.g.ui.Option(OptSound), value);
  }
}

// One damaged value in an otherwise good store: that value alone falls back to its default and
// one note names it; every other value is read as stored.
TEST(Settings, ADamagedValueFallsBackAloneWithANote) {
  struct Case {
    std::string section, key, text;
    std::function<bool(const Game&)> defaulted;
  };
  const auto highest = [](int t, int v) {
    return [=](const Game& g) { return g.HighestLevel(t) == v; };
  };
  const auto option = [](Option o, bool v) {
    return [=](const Game& g) { return g.ui.Option(o) == v; };
  };
  const auto tier0 = [](const Game& g) { return g.CurrentSkill == 0; };
  const std::vector<Case> cases = {
      {"HighestLevel", "1", "seven", highest(1, 1)},
      {"HighestLevel", "1", "", highest(1, 1)},
      {"HighestLevel", "1", "7.5", highest(1, 1)},
      {"HighestLevel", "1", "0x7", highest(1, 1)},
      {"HighestLevel", "1", std::string("7\0", 2), highest(1, 1)},
      {"HighestLevel", "2", "-4", highest(2, 1)},
      {"HighestLevel", "2", "0", highest(2, 1)},
      {"HighestLevel", "2", "21", highest(2, 20)},
      {"HighestLevel", "3", "99999999999999999999999999", highest(3, 20)},
      {"HighestLevel", "3", "-99999999999999999999999999", highest(3, 1)},
      {"Options", "Music", "maybe", option(OptMusic, true)},
      {"Options", "Music", "", option(OptMusic, true)},
      {"Options", "Scrolling", "yes", option(OptFastScrolling, false)},
      {"Options", "Change", "Tru", option(OptShowChange, true)},
      {"CurrentSkill", "Skill", "Expert", tier0},
      {"CurrentSkill", "Skill", "-1", tier0},
      {"CurrentSkill", "Skill", "5", tier0},
      {"CurrentSkill", "Skill", "99999999999999999999999", tier0},
  };
  const MapStore good = SavedStore();
  RecorderHost host;
  Game expected{host};
  MapStore copy = good;
  LoadSettings(expected, copy);
  for (const Case& c : cases) {
    SCOPED_TRACE(c.section + "/" + c.key + " = \"" + c.text + "\"");
    MapStore s = good;
    s.values[{c.section, c.key}] = c.text;
    DirtyGame d;
    const auto notes = LoadSettings(d.g, s);
    ASSERT_EQ(notes.size(), 1u);
    EXPECT_NE(notes[0].find(c.section + "/" + c.key), std::string::npos) << notes[0];
    EXPECT_TRUE(c.defaulted(d.g));
    // Everything else as stored: put the damaged value back and nothing else differs.
    if (c.section == "HighestLevel")
      d.g.HighestLevel(std::stoi(c.key)) = expected.HighestLevel(std::stoi(c.key));
    else if (c.section == "Options")
      for (Option o : {OptMusic, OptFastScrolling, OptShowChange})
        d.g.ui.OptionsChecked(o) = expected.ui.OptionsChecked(o);
    else
      d.g.CurrentSkill = expected.CurrentSkill;
    EXPECT_TRUE(static_cast<const GameState&>(d.g) == static_cast<const GameState&>(expected));
    EXPECT_TRUE(d.g.ui == expected.ui);
  }
}

TEST(Settings, HighestLevelsInsideTheRangeAreKeptAsRead) {
  for (const std::string text : {"1", "20", " 12 ", "+9"}) {
    SCOPED_TRACE(text);
    MapStore s;
    s.values[{"HighestLevel", "0"}] = text;
    DirtyGame d;
    EXPECT_TRUE(LoadSettings(d.g, s).empty());
    EXPECT_EQ(d.g.HighestLevel(0), std::stoi(text));
  }
}

TEST(Settings, AnEmptyStoredTierReadsAsBeginnerAndIsSavedBackAsZero) {
  MapStore s = SavedStore();
  s.values[{"CurrentSkill", "Skill"}] = "";
  DirtyGame d;
  EXPECT_TRUE(LoadSettings(d.g, s).empty());
  EXPECT_EQ(d.g.CurrentSkill, 0);
  SaveSettings(d.g, s);
  EXPECT_EQ(s.values.at({"CurrentSkill", "Skill"}), "0");
}

TEST(Settings, UnknownKeysAreIgnoredAndLeftInTheStore) {
  MapStore s = SavedStore();
  s.values[{"Options", "Colour"}] = "purple";
  s.values[{"HighestLevel", "4"}] = "junk";
  s.values[{"Elsewhere", "Skill"}] = "3";
  const MapStore before = s;
  DirtyGame d;
  EXPECT_TRUE(LoadSettings(d.g, s).empty());
  EXPECT_EQ(d.g.CurrentSkill, 2);
  SaveSettings(d.g, s);
  EXPECT_EQ(s.values, before.values);
}

}  // namespace
}  // namespace qb::test
