// Keeps the stored settings up to date while the game runs, so that a crash loses nothing.
#pragma once

#include <functional>
#include <map>
#include <string>

#include "core/game.h"
#include "ui/desktop/qsettings_store.h"

namespace qb::ui {

class SettingsKeeper {
 public:
  // `report` shows a message to the player when the settings could not be written. The
  // settings of `g` now are taken as written (they were just read).
  using Report = std::function<void(const std::string& text)>;
  SettingsKeeper(QSettingsStore& store, const Game& g, Report report);

  // Writes the settings when they differ from the last write tried (a won level, an option).
  // A write that failed is tried again at the next change, and at exit.
  void SaveIfChanged(const Game& g);
  // Writes them whatever changed (at exit).
  void Save(const Game& g);

 private:
  QSettingsStore& store_;
  Report report_;
  std::map<std::string, std::string> tried_;  // "section/key" -> value, as last written
};

}  // namespace qb::ui
