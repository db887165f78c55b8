// Twips (1440 to the inch) and pixels, for the window's edge-scroll and layout rules.
#pragma once

#include <cmath>

namespace qb::ui {

inline constexpr double kTwipsPerInch = 1440.0;

inline double PixelsToTwips(double px, double dpi) {
  return px * kTwipsPerInch / dpi;
}
inline double TwipsToPixels(double twips, double dpi) {
  return twips * dpi / kTwipsPerInch;
}
// Whole twips, as the 16-bit Integer arguments of the scroll step take them.
inline int RoundTwips(double twips) {
  return static_cast<int>(std::lround(twips));
}

}  // namespace qb::ui
