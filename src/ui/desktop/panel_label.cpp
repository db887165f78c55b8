// A label of the status panel that reports button presses and shows a back colour of the model.
#include "ui/desktop/panel_label.h"

#include <QMouseEvent>

#include "ui/desktop/qt_colour.h"

namespace qb::ui {

PanelLabel::PanelLabel(const QString& text, QWidget* parent) : QLabel(text, parent) {
  setAutoFillBackground(true);
  setAlignment(Qt::AlignCenter);
  setFocusPolicy(Qt::NoFocus);
  SetBack(kSystemWindow);
}

void PanelLabel::SetBack(Colour colour) {
  if (colour == back_) return;
  back_ = colour;
  QPalette p = palette();
  p.setColor(QPalette::Window, ToQColor(colour, QPalette()));
  p.setColor(QPalette::WindowText, Qt::black);
  setPalette(p);
}

void PanelLabel::mousePressEvent(QMouseEvent* event) {
  Q_EMIT pressed(event->button() == Qt::RightButton);
}

void PanelLabel::mouseReleaseEvent(QMouseEvent* event) {
  Q_EMIT released(event->button() == Qt::RightButton);
}

}  // namespace qb::ui
