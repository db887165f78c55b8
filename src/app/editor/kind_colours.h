// The square kinds' colours, from the game's own colour table.
#pragma once

#include <QColor>

namespace qb::editor {

// The colour the game paints a square of `kind` (0 to 17) with.
QColor KindColour(int kind);

}  // namespace qb::editor
