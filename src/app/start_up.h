// The program's start: settings, the splash that loads the play window, and the level chooser.
#pragma once

#include <functional>
#include <iosfwd>
#include <memory>

#include "core/game.h"
#include "core/settings.h"
#include "ui/desktop/desk_top.h"
#include "ui/desktop/qsettings_store.h"

namespace qb::app {

// The screens the start shows; the defaults are the game's own.
struct StartUpSteps {
  std::function<void(const std::function<void()>& loadDeskTop)> runSplash;
  ui::DeskTop::Chooser chooseLevel;
  ui::DeskTop::Dialog instructions;
  ui::DeskTop::Dialog about;
};
StartUpSteps GameSteps();

// Where the start goes after the window is up: the chooser, or straight into one level.
struct FirstLevel {
  int tier = -1;  // -1: let the player choose
  int number = 1;
};

// Runs the start in its fixed order: the tables are already filled by Game's constructor; the
// game timer gets its interval; the settings are read (notes on a bad value go to `notes`); the
// splash loads, centres and shows the play window; then the level chooser (or `first`) opens.
// The window saves the settings to `store` when it closes.
std::unique_ptr<ui::DeskTop> StartUp(Game& g, ui::QSettingsStore& store, const StartUpSteps& steps,
                                     std::ostream& notes, FirstLevel first = {});

}  // namespace qb::app
