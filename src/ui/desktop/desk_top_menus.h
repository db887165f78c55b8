// The play window's menu bar: four menus whose items are indexed as the command handlers expect.
#pragma once

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <array>

#include "core/controls.h"

namespace qb::ui {

// Every item is a QAction, separators included, so an item's index is its command index.
struct DeskTopMenus {
  std::array<QMenu*, 4> menuCmd{};  // "&Game", "&Level", "&Options", "&Help"
  std::array<QAction*, 3> gameCmd{};
  std::array<QAction*, 7> levelCmd{};
  std::array<QAction*, 9> optionsCmd{};
  std::array<QAction*, 3> helpCmd{};
};

// The Level captions come from the control model, which also changes them during play.
DeskTopMenus BuildMenus(QMenuBar* bar, const Controls& ui);

}  // namespace qb::ui
