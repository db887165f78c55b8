// The key codes the rules read, taken from the play window's Qt key events.
#pragma once

#include <QString>

class QKeyEvent;

namespace qb::ui {

// The rules' code of a Qt key: Enter, Esc, the arrows, letters and digits (0 for other keys).
int KeyCodeOf(int qtKey);

// The rules' code of a key event. The tool keys are the top-row keys 1 to 8 wherever the layout
// puts their digits and with or without Shift, so they are read from the native key codes that
// `platform` (a Qt platform name) reports; without native codes the Qt key decides.
int KeyCodeOf(const QKeyEvent& event, const QString& platform);

}  // namespace qb::ui
