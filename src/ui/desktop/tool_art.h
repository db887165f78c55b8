// The pictures and names of the eight tools for the tool bar.
#pragma once

#include <QPixmap>
#include <QString>

namespace qb::ui {

// "Climb", "Block", "Build", "Change", "Jump", "Slow", "Bomb", "Laser".
QString ToolName(int tool);
// The tool's icon, `sizePx` logical pixels square, sharp at `devicePixelRatio`.
QPixmap ToolPixmap(int tool, int sizePx, double devicePixelRatio);

}  // namespace qb::ui
