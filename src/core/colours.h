// Colours as 0x00BBGGRR values, the classic 16-colour palette and the named colours of the game.
#pragma once

#include <cstdint>

#include "core/fault.h"

namespace qb {

using Colour = uint32_t;

// The classic 16-colour palette, entry n = QBColor(n).
inline Colour QBColor(int n) {
  static constexpr Colour kPalette[16] = {
      0x000000, 0x800000, 0x008000, 0x808000, 0x000080, 0x800080, 0x008080, 0xC0C0C0,
      0x808080, 0xFF0000, 0x00FF00, 0xFFFF00, 0x0000FF, 0xFF00FF, 0x00FFFF, 0xFFFFFF};
  if (n < 0 || n > 15) throw RangeFault("QBColor", std::to_string(n));
  return kPalette[n];
}

inline constexpr Colour kWhite = 0xFFFFFF;
inline constexpr Colour kBlack = 0x000000;
inline constexpr Colour kYellow = 0x00FFFF;          // QBColor(14)
inline constexpr Colour kLightGreen = 0x00FF00;      // QBColor(10)
inline constexpr Colour kLightGrey = 0xC0C0C0;       // QBColor(7)
inline constexpr Colour kSystemWindow = 0x80000005;  // the system's window-background colour
inline constexpr Colour kToolInUse = 0xFF8080;       // light blue
inline constexpr Colour kToolsLost = 0xC0C0FF;       // light red: the leader is lost
inline constexpr Colour kToolsHome = 0xC0FFC0;       // light green: the leader is saved
inline constexpr Colour kWinMark = 0x80FFFF;         // light yellow
inline constexpr Colour kPressed = 0xC0E0FF;
inline constexpr Colour kPauseOn = 0x0080FF;      // orange
inline constexpr Colour kFastOn = 0x0000FF;       // red
inline constexpr Colour kTimeWarning = 0x0000FF;  // red
inline constexpr Colour kReplayOdd = 0x80FF80;
inline constexpr Colour kReplayEven = 0xFFFF80;
inline constexpr Colour kCrowdColour = 0xA25C53;

}  // namespace qb
