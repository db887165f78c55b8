// A label of the status panel that reports button presses and shows a back colour of the model.
#pragma once

#include <QLabel>

#include "core/colours.h"

namespace qb::ui {

class PanelLabel : public QLabel {
  Q_OBJECT
 public:
  explicit PanelLabel(const QString& text = {}, QWidget* parent = nullptr);
  // The back colour as the rules set it (kSystemWindow = the palette's window colour).
  void SetBack(Colour colour);
  Colour Back() const { return back_; }

 Q_SIGNALS:
  void pressed(bool rightButton);
  void released(bool rightButton);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  Colour back_ = 0xFFFFFFFF;  // no colour set yet
};

}  // namespace qb::ui
