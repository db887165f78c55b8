// One game: the state, the play window's control model, the drawn pictures and the host.
#pragma once

#include <string>

#include "core/attempt_log.h"
#include "core/controls.h"
#include "core/host.h"
#include "core/picture.h"
#include "core/sounds.h"
#include "core/state.h"

namespace qb {

// How a level ended. A routine that may end the level returns it, None while the level goes
// on; once it has ended, nothing more of the cycle runs and the caller passes the value up.
enum class [[nodiscard]] LevelEnd{None, Won, Lost, Timeout};

inline bool Ended(LevelEnd end) {
  return end != LevelEnd::None;
}

// The word for an end in replay headers and the headless runner's result: "running" for None.
inline const char* ResultWord(LevelEnd end) {
  switch (end) {
    case LevelEnd::Won:
      return "won";
    case LevelEnd::Lost:
      return "lost";
    case LevelEnd::Timeout:
      return "timeout";
    default:
      return "running";
  }
}

struct Game : GameState {
  explicit Game(Host& h);
  Game(const Game&) = default;
  Game& operator=(const Game&) = default;

  Controls ui;
  Pictures pic;
  Host* host;
  std::string ProgramFolder = ".";    // the folder that holds Levels/ and Music/
  LevelEnd LastEnd = LevelEnd::None;  // how the last level ended
  // Off: the rules run without painting; the pictures are left untouched (searches and
  // analyses that never show the game).
  bool Drawing = true;
  AttemptLog attempt;
  FinishedAttempt lastFinished;

  bool Sound() const { return ui.Option(OptSound); }
};

// Plays an effect if "&Sound" is checked.
void PlayEffect(Game& g, Sound sound);

// Fills the fixed tables: tier names, square colours, crowd colour, track names.
void InitColours(Game& g);
void InitTracks(Game& g);
void InitTables(Game& g);

// The path of a level file: the program's folder, "/Levels/", tier name, number, ".lvl".
std::string LevelPath(const Game& g, int tier, int number);

}  // namespace qb
