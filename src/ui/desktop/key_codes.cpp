// The key codes the rules read, taken from the play window's Qt key events.
#include "ui/desktop/key_codes.h"

#include <QKeyEvent>
#include <array>

#include "play/commands.h"

namespace qb::ui {
namespace {

// The top-row key of tool 0 to 7 (its digit 1 to 8) from the native codes, or -1.
int TopRowDigit(const QKeyEvent& event, const QString& platform) {
  const quint32 virtualKey = event.nativeVirtualKey();
  const quint32 scanCode = event.nativeScanCode();
  if (platform == "xcb" || platform == "wayland") {
    // X key codes (evdev + 8) are places on the keyboard: 10 to 17 are the keys 1 to 8.
    if (scanCode >= 10 && scanCode <= 17) return static_cast<int>(scanCode - 10);
    return -1;
  }
  if (platform == "cocoa") {
    // The keyboard's virtual key codes of the keys 1 to 8 (ANSI places, any layout).
    constexpr std::array<quint32, 8> kTopRow{0x12, 0x13, 0x14, 0x15, 0x17, 0x16, 0x1A, 0x1C};
    for (int i = 0; i < 8; ++i)
      if (virtualKey == kTopRow[static_cast<std::size_t>(i)]) return i;
    return -1;
  }
  // Windows: the virtual key codes '1' to '8' of the top row, whatever the layout and Shift.
  if (virtualKey >= 49 && virtualKey <= 56) return static_cast<int>(virtualKey - 49);
  return -1;
}

}  // namespace

int KeyCodeOf(int qtKey) {
  switch (qtKey) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return KeyEnter;
    case Qt::Key_Escape:
      return KeyEscape;
    case Qt::Key_Left:
      return KeyLeft;
    case Qt::Key_Up:
      return KeyUp;
    case Qt::Key_Right:
      return KeyRight;
    case Qt::Key_Down:
      return KeyDown;
    default:
      break;
  }
  // Letters and digits carry their upper-case character codes in both systems.
  if ((qtKey >= Qt::Key_0 && qtKey <= Qt::Key_9) || (qtKey >= Qt::Key_A && qtKey <= Qt::Key_Z))
    return qtKey;
  return 0;
}

int KeyCodeOf(const QKeyEvent& event, const QString& platform) {
  const bool keypad = event.modifiers().testFlag(Qt::KeypadModifier);
  const bool native = event.nativeVirtualKey() != 0 || event.nativeScanCode() != 0;
  if (native && !keypad) {
    const int digit = TopRowDigit(event, platform);
    if (digit >= 0) return Key1 + digit;
  }
  const int code = KeyCodeOf(event.key());
  // With native codes, a digit from elsewhere (the keypad, another row) is no tool key.
  if (code >= Key1 && code <= Key8 && (native || keypad)) return 0;
  return code;
}

}  // namespace qb::ui
