// The figures of an analysis in words, one line each, as `quorbit-level analyse` prints them and
// the editor's analysis panel shows them.
#pragma once

#include <string>

#include "analysis/analyse.h"

namespace qb::analysis {

// "won", "lost" or "timeout"; a play stopped once too few could still be saved counts as lost.
std::string EndName(const Outcome& o);
// "12..14 (3)": earliest, latest and width.
std::string WindowText(const Window& w);
// "B never", "B at 1 cycle (40)", "B at 3 cycles (40..42)".
std::string SingleToolText(const SingleToolWins& w);
// The presses whose window, moved alone or with the later ones, is one cycle wide.
int CountWidthOne(const Analysis& a, bool shifted);
double Percent(int part, int whole);

// "won, saved 8 / needed 5 / total 10, 123 of 600 cycles"
std::string ResultLine(const Analysis& a);
// How many presses and how many have a window of one cycle, or that the solution does not win.
std::string PressesLine(const Analysis& a);
// "cycle 21 B: alone 20..21 (2), with the later ones 19..21 (3), redundant"
std::string PressLine(const PressFigures& f);
// "no tools: lost (saved 0)"
std::string NoToolsLine(const Analysis& a);
// "one tool: B at 2 cycles (30..31); J never;" or "one tool: none in stock"
std::string OneToolLine(const Analysis& a);
// The squares visited and the largest empty region no character entered.
std::string SpaceLine(const Analysis& a);

}  // namespace qb::analysis
