// The game's small screens (title card, results, chooser, help, about, splash) and its art.
#pragma once

#include <QIcon>
#include <QPixmap>
#include <functional>

#include "core/game.h"
#include "core/host.h"
#include "core/settings.h"

class QWidget;

namespace qb::ui {

// Title card, level won, level lost, game won: modal over `parent`; returns when closed.
void ShowScreen(QWidget* parent, qb::Screen screen, const qb::ScreenTexts& texts);
// The level chooser, modal. On Play (or a double click) it closes itself and then calls
// play(tier, level); Cancel just closes. Hidden switches change g.HighestLevel.
// Where the level chooser finds the player's records, to mark the levels won and show the
// selected level's record; without it the chooser shows none.
void SetChooserRecords(qb::SettingsStore* store);
void ShowChooseLevel(QWidget* parent, qb::Game& g, const std::function<void(int, int)>& play);
void ShowInstructions(QWidget* parent);  // modal, three pages
void ShowAbout(QWidget* parent);         // modal
// The splash: shows a picture window; on its first 100 ms tick calls loadDeskTop(), on the
// next tick closes; returns when closed (runs its own event loop).
void RunSplash(const std::function<void()>& loadDeskTop);
// Art, rendered from SVG sources in data/art/ (embedded as Qt resources):
QPixmap ToolIcon(int tool,
                 int sizePx);  // tools 0..7: climb block build change jump slow bomb laser
QIcon AppIcon();

}  // namespace qb::ui
