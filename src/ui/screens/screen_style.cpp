// Shared look of the small screens: the title font and the rule line.
#include "ui/screens/screen_style.h"

#include <QPainter>

namespace qb::ui {

QFont ArialFont(int pointSize, bool bold) {
  QFont f(QStringLiteral("Arial"), pointSize, bold ? QFont::Bold : QFont::Normal);
  f.setStyleHint(QFont::SansSerif);
  return f;
}

RuleLine::RuleLine(QWidget* parent) : QWidget(parent) {
  setFixedHeight(4);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void RuleLine::SetColour(const QColor& c) {
  colour_ = c;
  update();
}

void RuleLine::paintEvent(QPaintEvent*) {
  QPainter p(this);
  p.fillRect(QRect(0, height() / 2 - 1, width(), 2), colour_);
}

}  // namespace qb::ui
