// One game: the state, the play window's control model, the drawn pictures and the host.
#pragma once

#include <string>

#include "core/controls.h"
#include "core/host.h"
#include "core/picture.h"
#include "core/state.h"

namespace qb {

// How the last level ended; read by the headless runner and the tests.
enum class LevelEnd { None, Won, Lost, Timeout };

struct Game : GameState {
  explicit Game(Host& h);
  Game(const Game&) = default;
  Game& operator=(const Game&) = default;

  Controls ui;
  Pictures pic;
  Host* host;
  std::string ProgramFolder = ".";  // the folder that holds Levels/ and Music/
  LevelEnd LastEnd = LevelEnd::None;
  int LevelsEnded = 0;  // grows each time a level ends; lets the cycle notice it

  bool Sound() const { return ui.Option(OptSound); }
};

// Thrown when the level ended inside a cycle: no later step of that cycle runs.
struct LevelOver {};

// Plays an effect if "&Sound" is checked.
void PlayEffect(Game& g, int number, const char* type = "SOUND");

// Fills the fixed tables: tier names, square colours, crowd colour, track names.
void InitColours(Game& g);
void InitTracks(Game& g);
void InitTables(Game& g);

// The path of a level file: the program's folder, "/Levels/", tier name, number, ".lvl".
std::string LevelPath(const Game& g, int tier, int number);

}  // namespace qb
