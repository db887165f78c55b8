// Unattended runs for the end-to-end test and screenshots: answers modal screens, presses keys,
// switches to fast play, grabs pictures and quits after a while.
#include "app/autopilot.h"

#include <QApplication>
#include <QDateTime>
#include <QDir>
#include <QKeyEvent>
#include <QWidget>
#include <cstdio>

#include "play/replay.h"

namespace qb::app {
namespace {

void SendKey(QWidget* target, int key) {
  QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
  QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier);
  QApplication::sendEvent(target, &press);
  QApplication::sendEvent(target, &release);
}

QString Describe(QWidget* w) {
  QString name = w->objectName().isEmpty() ? w->metaObject()->className() : w->objectName();
  name.replace("::", "-");
  return name.isEmpty() ? QStringLiteral("screen") : name;
}

}  // namespace

Autopilot::Autopilot(const AutopilotOptions& options, QObject* parent)
    : QObject(parent), options_(options) {
  poll_.setInterval(100);
  connect(&poll_, &QTimer::timeout, this, &Autopilot::Poll);
}

void Autopilot::Start() {
  poll_.start();
  if (options_.quitAfterMs > 0) QTimer::singleShot(options_.quitAfterMs, this, &Autopilot::Finish);
}

void Autopilot::Attach(ui::DeskTop* desk) {
  desk_ = desk;
  connect(desk_, &ui::DeskTop::cycleRan, this, &Autopilot::OnCycle);
  // The time ran out while start-up was still showing its screens: finish once the main loop runs.
  if (finishPending_) QTimer::singleShot(0, this, &Autopilot::Finish);
}

void Autopilot::Poll() {
  QWidget* modal = QApplication::activeModalWidget();
  if (!modal) {
    modal_ = nullptr;
    return;
  }
  const qint64 now = QDateTime::currentMSecsSinceEpoch();
  if (modal != modal_) {
    modal_ = modal;
    modalSince_ = now;
    return;
  }
  if (now - modalSince_ < options_.screenDelayMs) return;
  // The screen has finished its reveal: keep its picture, then answer it with Enter.
  if (!options_.shotsFolder.isEmpty()) {
    const QString file =
        QDir(options_.shotsFolder)
            .filePath(QString("%1-%2.png").arg(++shots_, 2, 10, QChar('0')).arg(Describe(modal)));
    modal->grab().save(file);
    std::printf("screen %s\n", qPrintable(Describe(modal)));
  }
  modal_ = nullptr;
  SendKey(modal, Qt::Key_Return);
}

bool Autopilot::StartReplay(Game& g) {
  if (options_.replayText.isEmpty()) return true;
  const ReplayFile replay = ParseReplay(options_.replayText.toStdString());
  if (!replay.error.empty()) {
    std::fprintf(stderr, "replay: %s\n", replay.error.c_str());
    return false;
  }
  // As at the end of a load that has a replay to play.
  for (int t = 0; t < kReplaySlots; ++t) g.ReplayLog(t) = replay.slots[static_cast<std::size_t>(t)];
  g.ReplayPlaying = g.ReplayLog(0) == "E" ? False : True;
  g.ReplayTick = 0;
  g.ui.Label8Visible = g.ReplayPlaying != False;
  return true;
}

void Autopilot::OnCycle(long cycles) {
  if (!desk_) return;
  const Game& g = desk_->game();
  if (options_.fast && !fastDone_ && g.ui.Timer1Interval == 350) {
    fastDone_ = true;
    desk_->Menus().levelCmd[1]->trigger();
    fastFrom_ = cycles;
    paintedFrom_ = desk_->Picture1()->SquaresPainted();
    // The measurement: how many cycles fast play runs in ten seconds, and what they paint.
    QTimer::singleShot(10000, this, [this] {
      fastCycles_ = desk_->CyclesRun() - fastFrom_;
      fastPainted_ = desk_->Picture1()->SquaresPainted() - paintedFrom_;
    });
  }
  while (nextKey_ < options_.keys.size() && options_.keys[nextKey_].first <= cycles) {
    SendKey(desk_, options_.keys[nextKey_].second);
    ++nextKey_;
  }
}

void Autopilot::Finish() {
  if (!desk_) {
    // Start-up has not handed over the window yet (a title card may be up): close the screen
    // so that start-up can return, and finish when the window is attached.
    finishPending_ = true;
    if (QWidget* modal = QApplication::activeModalWidget()) modal->close();
    return;
  }
  if (!options_.finalShot.isEmpty()) desk_->grab().save(options_.finalShot);
  if (options_.report) {
    std::printf("cycles %ld painted %ld\n", desk_->CyclesRun(),
                desk_->Picture1()->SquaresPainted());
    if (fastCycles_ >= 0)
      std::printf("fast play: %ld cycles in 10 s, %ld squares painted (%.1f a cycle)\n",
                  fastCycles_, fastPainted_,
                  fastCycles_ > 0 ? double(fastPainted_) / fastCycles_ : 0.0);
  }
  std::fflush(stdout);
  // A modal screen still up would hold the window: close it first.
  while (QWidget* modal = QApplication::activeModalWidget()) {
    modal->close();
    QApplication::processEvents();
    if (QApplication::activeModalWidget() == modal) break;
  }
  desk_->close();  // a message box it shows (the settings not saved) is answered as any other
  poll_.stop();
  QApplication::quit();
}

}  // namespace qb::app
