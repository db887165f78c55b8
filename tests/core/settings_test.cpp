// The per-user settings: defaults on a first run, round trips, the spellings accepted, and
// damaged values that fall back one by one with a note each.
#include "core/settings.h"

#include <gtest/gtest.h>

#include <functional>

#include "support/map_store.h"
#include "support/recorder_host.h"

namespace qb::test {
namespace {

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

bool SameSettings(const Game& a, const Game& b) {
  return static_cast<const GameState&>(a) == static_cast<const GameState&>(b) && a.ui == b.ui;
}

TEST(Settings, DefaultsAndSavedValuesSurviveASaveAndALoad) {
  // A first run: the defaults, without notes.
  DirtyGame first;
  MapStore empty;
  EXPECT_TRUE(LoadSettings(first.g, empty).empty());
  for (int t = 0; t < 4; ++t) EXPECT_EQ(first.g.HighestLevel(t), 1) << "tier " << t;
  for (Option o : {OptMusic, OptSound, OptReplay, OptShowChange})
    EXPECT_TRUE(first.g.ui.Option(o)) << o;
  for (Option o : {OptFastScrolling, OptSmartScrolling}) EXPECT_FALSE(first.g.ui.Option(o)) << o;
  EXPECT_EQ(first.g.CurrentSkill, 0);
  MapStore defaults;
  SaveSettings(first.g, defaults);
  DirtyGame second;
  EXPECT_TRUE(LoadSettings(second.g, defaults).empty());
  EXPECT_TRUE(SameSettings(second.g, first.g));

  // Saved values load back and are written again exactly as stored.
  MapStore stored = SavedStore();
  DirtyGame third;
  EXPECT_TRUE(LoadSettings(third.g, stored).empty());
  MapStore written;
  SaveSettings(third.g, written);
  EXPECT_EQ(written.values, stored.values);
}

TEST(Settings, OtherSpellingsOfGoodValuesAreReadWithoutNotes) {
  struct Case {
    std::string section, key, text;
    std::function<bool(const Game&)> read;
  };
  const auto sound = [](bool v) {
    return [=](const Game& g) { return g.ui.Option(OptSound) == v; };
  };
  const auto highest = [](int v) { return [=](const Game& g) { return g.HighestLevel(0) == v; }; };
  const std::vector<Case> cases = {
      {"Options", "Sound", "true", sound(true)},
      {"Options", "Sound", " False ", sound(false)},
      {"HighestLevel", "0", " 12 ", highest(12)},
      {"CurrentSkill", "Skill", "", [](const Game& g) { return g.CurrentSkill == 0; }},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.section + "/" + c.key + " = \"" + c.text + "\"");
    MapStore s = SavedStore();
    s.values[{c.section, c.key}] = c.text;
    DirtyGame d;
    EXPECT_TRUE(LoadSettings(d.g, s).empty());
    EXPECT_TRUE(c.read(d.g));
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
      {"HighestLevel", "1", "7.5", highest(1, 1)},
      {"HighestLevel", "1", std::string("7\0", 2), highest(1, 1)},
      {"HighestLevel", "2", "-4", highest(2, 1)},
      {"HighestLevel", "2", "21", highest(2, 20)},
      {"HighestLevel", "3", "99999999999999999999999999", highest(3, 20)},
      {"Options", "Music", "maybe", option(OptMusic, true)},
      {"Options", "Scrolling", "yes", option(OptFastScrolling, false)},
      {"CurrentSkill", "Skill", "Expert", tier0},
      {"CurrentSkill", "Skill", "5", tier0},
  };
  RecorderHost host;
  Game expected{host};
  MapStore good = SavedStore();
  LoadSettings(expected, good);
  for (const Case& c : cases) {
    SCOPED_TRACE(c.section + "/" + c.key + " = \"" + c.text + "\"");
    MapStore s = SavedStore();
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
    EXPECT_TRUE(SameSettings(d.g, expected));
  }
}

}  // namespace
}  // namespace qb::test
