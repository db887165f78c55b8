// The game-won screen: a picture, "Well Done!" and the closing text; a click or Enter closes it.
#pragma once

#include <QLabel>

#include "core/host.h"
#include "ui/screens/click_away_dialog.h"

namespace qb::ui {

class WonGameScreen : public ClickAwayDialog {
  Q_OBJECT
 public:
  WonGameScreen(const ScreenTexts& texts, QWidget* parent = nullptr);
  QLabel* Label1() const { return label1_; }
  QLabel* Label2() const { return label2_; }

 private:
  QLabel* label1_;
  QLabel* label2_;
};

}  // namespace qb::ui
