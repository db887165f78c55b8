// Turns the rules' 0x00BBGGRR colours into Qt colours.
#pragma once

#include <QColor>
#include <QPalette>

#include "core/colours.h"

namespace qb::ui {

// kSystemWindow stands for the palette's window colour; every other value is blue, green, red.
inline QColor ToQColor(Colour c, const QPalette& palette) {
  if (c == kSystemWindow) return palette.color(QPalette::Window);
  return QColor(static_cast<int>(c & 0xFF), static_cast<int>((c >> 8) & 0xFF),
                static_cast<int>((c >> 16) & 0xFF));
}

// The same for a fixed colour that never means the palette.
inline QRgb ToRgb(Colour c) {
  return qRgb(static_cast<int>(c & 0xFF), static_cast<int>((c >> 8) & 0xFF),
              static_cast<int>((c >> 16) & 0xFF));
}

}  // namespace qb::ui
