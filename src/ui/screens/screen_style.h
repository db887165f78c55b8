// Shared look of the small screens: colour conversion, the title font, twips and the rule line.
#pragma once

#include <QColor>
#include <QFont>
#include <QWidget>
#include <cstdint>

namespace qb::ui {

// The game writes colours as 0x00BBGGRR.
inline QColor FromBgr(uint32_t bgr) {
  return QColor(static_cast<int>(bgr & 0xFF), static_cast<int>((bgr >> 8) & 0xFF),
                static_cast<int>((bgr >> 16) & 0xFF));
}

// Positions given in twips (15 to a pixel at 96 dpi) as device-independent pixels.
constexpr int Twips(int twips) {
  return twips / 15;
}

// Arial, or the system's sans face when Arial is not installed.
QFont ArialFont(int pointSize, bool bold);

// A horizontal line with a colour of its own (the screens' `Line1`).
class RuleLine : public QWidget {
  Q_OBJECT
 public:
  explicit RuleLine(QWidget* parent = nullptr);
  void SetColour(const QColor& c);
  QColor Colour() const { return colour_; }
  QSize sizeHint() const override { return {100, 4}; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QColor colour_ = Qt::black;
};

}  // namespace qb::ui
