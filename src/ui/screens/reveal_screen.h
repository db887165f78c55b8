// The title card and the level-won and level-lost screens: a title, a line and a column of
// texts revealed one after another, each flashing in a highlight colour before turning black.
#pragma once

#include <QLabel>
#include <QTimer>
#include <vector>

#include "core/host.h"
#include "ui/screens/click_away_dialog.h"
#include "ui/screens/screen_style.h"

namespace qb::ui {

class RevealScreen : public ClickAwayDialog {
  Q_OBJECT
 public:
  // `screen` is Title, WinLevel or LooseLevel.
  RevealScreen(Screen screen, const ScreenTexts& texts, QWidget* parent = nullptr);

  // One tick of the reveal (the 200 ms timer calls it).
  void Step();
  int RevealStep() const { return revealStep_; }
  bool TimerRunning() const { return timer_.isActive(); }
  QColor Highlight() const { return highlight_; }
  // True while the window shows the light yellow of a completed tier.
  bool Celebrating() const { return celebrating_; }

  QLabel* Label1() const { return label1_; }
  RuleLine* Line1() const { return line1_; }
  QLabel* Label2(int i) const { return label2_.at(static_cast<size_t>(i)); }
  int Label2Count() const { return static_cast<int>(label2_.size()); }

 private:
  void Reveal(QLabel* label);
  void SetBackground(bool celebrate);

  Screen screen_;
  QColor highlight_;
  QLabel* label1_;
  RuleLine* line1_;
  std::vector<QLabel*> label2_;
  QTimer timer_;
  int revealStep_ = 0;
  bool celebrating_ = false;
};

}  // namespace qb::ui
