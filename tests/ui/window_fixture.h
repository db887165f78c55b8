// A play window over a game whose levels live in a temporary program folder; its screens and
// message boxes are recorded instead of shown.
#pragma once

#include <QTemporaryDir>
#include <memory>
#include <string>
#include <vector>

#include "core/game.h"
#include "core/level_file.h"
#include "ui/desktop/desk_top.h"
#include "ui/desktop/qt_host.h"

namespace qb::test {

struct Window {
  QTemporaryDir folder;
  ui::QtHost host;
  Game g{host};
  std::unique_ptr<ui::DeskTop> desk;
  std::vector<Screen> screens;
  std::vector<std::string> messages;
  std::vector<QString> faults;
  ui::FaultChoice faultAnswer = ui::FaultChoice::Close;

  // Writes Beginner1 and Beginner2 into the program folder.
  Window();
  // Writes a level file as Beginner<number>.lvl of the program folder.
  void WriteBeginner(int number, const LevelData& level);
  // Loads Beginner `number` as the chooser does (title card recorded, not shown).
  void Play(int number = 1);
  void Ticks(int n);
  QString Folder() const;
};

// Clears the game's settings store (tests run with their own XDG_CONFIG_HOME).
void ClearStoredSettings();

}  // namespace qb::test
