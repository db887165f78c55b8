// The splash window and its timer.
#include "ui/screens/splash.h"

#include <QGuiApplication>
#include <QScreen>
#include <QVBoxLayout>

#include "ui/screens/art.h"

namespace qb::ui {

Splash::Splash(std::function<void()> loadDeskTop, QWidget* parent)
    : QWidget(parent, Qt::SplashScreen | Qt::FramelessWindowHint),
      loadDeskTop_(std::move(loadDeskTop)) {
  setWindowTitle(QStringLiteral("Quorbit 2"));
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(new ArtView(QStringLiteral("splash"), QSize(480, 300), this));
  adjustSize();
  if (const QScreen* screen = QGuiApplication::primaryScreen())
    move(screen->availableGeometry().center() - rect().center());
  connect(&timer_, &QTimer::timeout, this, &Splash::Tick);
  timer_.start(100);
}

void Splash::Tick() {
  if (done_) return;
  // No tick while one runs: loading the play window may run event loops of its own (a message
  // box), and must neither be entered twice nor have the splash closed under it.
  timer_.stop();
  ++splashTicks_;
  if (splashTicks_ == 1) {
    if (loadDeskTop_) loadDeskTop_();
    timer_.start(100);
    return;
  }
  done_ = true;
  close();
  emit finished();
}

}  // namespace qb::ui
