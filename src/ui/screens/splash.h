// The splash: a picture window whose 100 ms timer loads the play window on its first tick and
// closes the splash on the next.
#pragma once

#include <QTimer>
#include <QWidget>
#include <functional>

namespace qb::ui {

class Splash : public QWidget {
  Q_OBJECT
 public:
  explicit Splash(std::function<void()> loadDeskTop, QWidget* parent = nullptr);

  // One tick of the timer.
  void Tick();
  int SplashTicks() const { return splashTicks_; }
  bool TimerRunning() const { return timer_.isActive(); }

 signals:
  void finished();

 private:
  std::function<void()> loadDeskTop_;
  QTimer timer_;
  int splashTicks_ = 0;
  bool done_ = false;
};

}  // namespace qb::ui
