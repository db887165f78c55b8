// The checks shared by the fuzz targets and the regression tests.
#include "input_checks.h"

#include <array>
#include <string>

#include "core/fault.h"
#include "core/level_file.h"
#include "core/settings.h"
#include "findings.h"
#include "level/loader.h"
#include "leveltext/level_text.h"
#include "play/commands.h"
#include "play/cycle.h"
#include "play/replay.h"
#include "support/game_compare.h"
#include "support/level_builder.h"
#include "support/map_store.h"
#include "support/recorder_host.h"

namespace qb::fuzz {
namespace {

constexpr int kCycles = 40;        // cycles a loaded level is played
constexpr int kReplayCycles = 80;  // cycles a replay is played

// Plays a loaded level as a player would; the input's bytes, read in a circle, pick a command
// before each cycle: a tool press, an arrow key or a click on the overview map.
void Play(Game& g, const std::vector<uint8_t>& bytes) {
  try {
    for (int cycle = 0; cycle < kCycles; ++cycle) {
      const int pick = bytes[static_cast<std::size_t>(cycle * 31) % bytes.size()];
      if (pick % 5 == 0) {
        ToolButtonDown(g, (pick / 5) % kToolCount);
        ToolButtonUp(g, (pick / 5) % kToolCount);
      } else if (pick % 5 == 1) {
        Form_KeyUp(g, KeyLeft + (pick / 5) % 4);
      } else if (pick % 5 == 2) {
        OverviewClick(g, pick * 7 % 125 - 2, pick * 3 % 85 - 2);
      }
      Timer1_Timer(g);
    }
  } catch (const ProgramFault&) {
    // The window stops the game timer on a fault; the run ends here as the game would.
  }
}

// A level from rows of characters (the tests' legend), one entrance at (1, 1), every tool in
// stock.
LevelData RowsLevel(const std::vector<std::string>& rows) {
  LevelData d = test::MakeLevel(rows, 1, 1, /*total=*/6, /*needed=*/2, /*releaseInterval=*/2,
                                /*time=*/300);
  d.ToolStock.fill(4);
  return d;
}

Game Loaded(test::RecorderHost& host, const LevelData& d) {
  Game g{host};
  g.SkipTitle = True;
  g.ui.OptionsChecked(OptReplay) = true;
  host.files["fixed.lvl"] = WriteLevel(d);
  if (!LoadLevel(g, "fixed.lvl").Loaded()) Finding("a fixed level is refused");
  return g;
}

// A small level some cycles under way, with a block placed and the view scrolled: made once,
// copied for each input that is loaded over it.
const Game& RunningGame(test::RecorderHost& host) {
  static const Game running = [&host] {
    Game g = Loaded(host, RowsLevel({std::string(50, '.'), std::string(50, '.'),
                                     std::string(47, '.') + "D..", std::string(50, '#')}));
    for (int i = 0; i < 6; ++i) Timer1_Timer(g);
    ToolButtonDown(g, ToolBlock);
    Form_KeyUp(g, KeyRight);
    Timer1_Timer(g);
    return g;
  }();
  return running;
}

// A level with something for every tool to act on, for replays to play on.
const Game& Playground(test::RecorderHost& host) {
  static const Game ground = Loaded(host, RowsLevel({
                                              "M.........................c......M",
                                              "M.................................",
                                              "M.........b.........M.............",
                                              "M.........b.........M.......~~..D.",
                                              "###########.....##########c###MMMM",
                                              "MMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMMM",
                                          }));
  return ground;
}

// The first message or note (without the message box's title) a person could not read.
std::string UnreadableMessage(const test::RecorderHost& host) {
  for (const std::string& m : host.messages)
    if (std::string problem = MessageProblem(m.substr(m.find(": ") + 2)); !problem.empty())
      return problem;
  for (const std::string& n : host.notes)
    if (std::string problem = MessageProblem(n); !problem.empty()) return problem;
  return "";
}

// Loads the input over a running level. A refused load must leave that game as it was, except
// that a missing level keeps the title and number just read.
std::string CheckLoadOverRunningGame(const std::vector<uint8_t>& bytes) {
  static test::RecorderHost host;
  const Game& running = RunningGame(host);
  host.Clear();  // the host lives through every run
  host.files["input.lvl"] = bytes;
  Game g = running;
  try {
    // The game's own load, which shows the refusal and notes why a level is missing.
    const LoadResult result = OpenLevel(g, "input.lvl");
    if (std::string problem = UnreadableMessage(host); !problem.empty()) return problem;
    if (result == LoadResult::Loaded) return "";
    Game expected = running;
    if (result == LoadResult::Missing) {
      expected.LevelTitle = g.LevelTitle;
      expected.LevelName = g.LevelName;
      expected.LevelNumber = g.LevelNumber;
    }
    if (const std::string parts = test::GameDifferences(g, expected); !parts.empty())
      return "a refused load changed the running game:" + parts;
  } catch (const ProgramFault&) {
    // Loading a level the reader accepted faulted while setting it up; the window reports it.
  }
  return "";
}

struct SettingsSeen {
  std::array<int, 4> highest{};
  std::array<bool, 9> options{};
  int32_t tier = 0;
  bool operator==(const SettingsSeen&) const = default;
};

SettingsSeen Seen(const Game& g) {
  SettingsSeen s;
  for (int t = 0; t < 4; ++t) s.highest[static_cast<std::size_t>(t)] = g.HighestLevel(t);
  for (int o = 0; o < 9; ++o) s.options[static_cast<std::size_t>(o)] = g.ui.OptionsChecked(o);
  s.tier = g.CurrentSkill;
  return s;
}

}  // namespace

std::string CheckLevelFile(const std::vector<uint8_t>& bytes) {
  if (std::string problem = CheckLoadOverRunningGame(bytes); !problem.empty()) return problem;
  const LevelRead read = ReadLevel(bytes);
  if (read.status != ReadStatus::Ok) {
    const std::string problem = MessageProblem(read.problem);
    return problem.empty() ? "" : "the reason a level is refused: " + problem;
  }
  const LevelRead again = ReadLevel(WriteLevel(read.data));
  if (again.status != ReadStatus::Ok || !again.shortAt.empty())
    return "the written level does not read back whole: " + again.problem + again.shortAt;
  if (!(again.data == read.data)) return "writing then reading changed the level";

  test::RecorderHost host;
  Game g{host};
  g.ui.OptionsChecked(OptSound) = true;
  g.ui.OptionsChecked(OptReplay) = true;
  g.SkipTitle = True;
  ApplyLevel(g, read.data);
  g.Leader = 0;
  try {
    SetUpLevel(g);
  } catch (const ProgramFault&) {
    return "";  // reported to the player by the window; nothing more to play
  }
  g.ui.Timer1Enabled = true;
  Play(g, bytes);
  return "";
}

std::string CheckLevelText(std::string_view text) {
  using namespace leveltext;
  const ParsedLevel first = ParseLevelText(text);
  for (const Diagnostic& d : first.diagnostics)
    if (std::string problem = MessageProblem(d.message); !problem.empty()) return problem;
  if (!first.ok()) return "";
  const std::string printed = PrintLevelText(first.data);
  const ParsedLevel second = ParseLevelText(printed);
  if (!second.ok())
    return "the printed level does not parse: " +
           FormatDiagnostic("printed", second.diagnostics[0]);
  if (!(Normalized(second.data) == Normalized(first.data)))
    return "printing then parsing changed the level";
  if (PrintLevelText(second.data) != printed) return "printing the level again gives other text";
  const LevelRead compiled = ReadLevel(WriteLevel(first.data));
  if (compiled.status != ReadStatus::Ok)
    return "the game refuses the compiled level: " + compiled.problem;
  if (!(compiled.data == first.data)) return "the compiled level reads back different";
  return "";
}

std::string CheckReplay(const std::string& text) {
  const ReplayFile parsed = ParseReplay(text);
  if (parsed.slots.size() != static_cast<std::size_t>(kReplaySlots))
    return "the replay does not have one slot a cycle";
  if (!parsed.error.empty()) {
    if (parsed.error.rfind("line ", 0) != 0) return "an error without a line";
    return MessageProblem(parsed.error);
  }
  test::RecorderHost host;
  Game g{host};
  for (int t = 0; t < kReplaySlots; ++t) {
    const std::string& slot = parsed.slots[static_cast<std::size_t>(t)];
    if (slot.find_first_not_of("CKBDJRXLE") != std::string::npos)
      return "slot " + std::to_string(t) + " holds a letter that is not a replay letter";
    g.ReplayLog(t) = slot;
  }
  const ReplayFile again = ParseReplay(FormatReplay(g));
  if (!again.error.empty()) return "the written replay does not parse: " + again.error;
  if (again.slots != parsed.slots) return "writing then parsing changed the replay";

  // Played as the headless runner plays it; a fault stops the run as it stops the game.
  static test::RecorderHost playHost;
  playHost.Clear();  // the played copies share the host, which lives through every run
  Game play = Playground(playHost);
  for (int t = 0; t < kReplaySlots; ++t)
    play.ReplayLog(t) = parsed.slots[static_cast<std::size_t>(t)];
  play.ReplayPlaying = play.ReplayLog(0) != "E" ? True : False;
  play.ReplayTick = 0;
  try {
    for (int cycle = 0; cycle < kReplayCycles; ++cycle) Timer1_Timer(play);
  } catch (const ProgramFault&) {
  }
  return "";
}

std::string CheckSettings(const std::string& input) {
  test::MapStore store;
  std::size_t start = 0;
  while (start < input.size()) {
    std::size_t end = input.find('\n', start);
    if (end == std::string::npos) end = input.size();
    const std::string line = input.substr(start, end - start);
    const auto eq = line.find('=');
    const auto slash = line.find('/');
    if (eq != std::string::npos && slash < eq)
      store.values[{line.substr(0, slash), line.substr(slash + 1, eq - slash - 1)}] =
          line.substr(eq + 1);
    start = end + 1;
  }
  test::RecorderHost host;
  Game g{host};
  const auto notes = LoadSettings(g, store);
  for (const std::string& n : notes)
    if (std::string problem = MessageProblem(n); !problem.empty()) return problem;
  for (int t = 0; t < 4; ++t)
    if (g.HighestLevel(t) < 1 || g.HighestLevel(t) > 20)
      return "highest level " + std::to_string(g.HighestLevel(t)) + " of tier " +
             std::to_string(t) + " is outside 1 to 20";
  if (g.CurrentSkill < 0 || g.CurrentSkill > 4)
    return "tier " + std::to_string(g.CurrentSkill) + " is outside 0 to 4";
  const SettingsSeen loaded = Seen(g);
  test::MapStore saved;
  SaveSettings(g, saved);
  Game reloaded{host};
  const auto notesAgain = LoadSettings(reloaded, saved);
  if (!notesAgain.empty()) return "the saved settings load with a note: " + notesAgain[0];
  if (!(Seen(reloaded) == loaded)) return "saving then loading changed the settings";
  return "";
}

}  // namespace qb::fuzz
