// The title card and the result screens: what they do to the game and the texts they show.
#pragma once

#include <string>

#include "core/game.h"

namespace qb {

// "character" for 1, "characters" otherwise.
std::string CharWord(long n);

ScreenTexts TitleTexts(const Game& g);
ScreenTexts WinLevelTexts(const Game& g);  // five lines; the last is the tier message or ""
ScreenTexts LooseLevelTexts(const Game& g);
ScreenTexts WonGameTexts();

// Each runs the screen's load (its effect on the game and its sound), shows it modally through
// the host and returns when it is closed.
void ShowTitleScreen(Game& g);
void ShowWinLevel(Game& g);
void ShowLooseLevel(Game& g);
void ShowWonGame(Game& g);

}  // namespace qb
