// Paints one square of the play view: its colour and, for a character, the face.
#pragma once

#include <QPainter>
#include <QRect>

#include "core/picture.h"

namespace qb::ui {

// Fills `rect` (device pixels) with the cell's colour; a character square gets two white eyes
// and a smile turned to its direction, or the climbing pose.
void PaintSquare(QPainter& painter, const QRect& rect, const ViewCell& cell);

}  // namespace qb::ui
