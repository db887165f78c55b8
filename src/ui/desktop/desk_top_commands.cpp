// DeskTop's commands: menus, keys, mouse and the level chooser, each a call into the rules.
#include <QCloseEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>

#include "core/game.h"
#include "draw/drawing.h"
#include "level/loader.h"
#include "level/music.h"
#include "play/commands.h"
#include "play/level_commands.h"
#include "play/replay.h"
#include "ui/desktop/desk_top.h"
#include "ui/desktop/key_codes.h"

namespace qb::ui {

void DeskTop::ConnectCommands() {
  connect(menus_.gameCmd[0], &QAction::triggered, this, [this] { ChooseLevel(); });
  connect(menus_.gameCmd[2], &QAction::triggered, this, [this] { close(); });
  for (int i = 0; i < 7; ++i) {
    QAction* a = menus_.levelCmd[static_cast<std::size_t>(i)];
    if (!a->isSeparator())
      connect(a, &QAction::triggered, this,
              [this, i] { Run([this, i] { LevelCmd_Click(g_, i); }); });
  }
  for (int i = 0; i < 9; ++i) {
    QAction* a = menus_.optionsCmd[static_cast<std::size_t>(i)];
    if (!a->isSeparator())
      connect(a, &QAction::triggered, this, [this, i] {
        Run([this, i] {
          OptionsCmd_Click(g_, i);
          // Switching Fast Scrolling on clears the view; the window shows it again.
          if (i == OptFastScrolling && g_.ui.Frame1Visible) Picture1_Paint(g_);
        });
      });
  }
  const auto help = [this](const Dialog* dialog) {
    Run([this] { PauseForDialog(g_); });
    if (!*dialog) return;
    EnterModal();
    (*dialog)(this);
    LeaveModal();
  };
  connect(menus_.helpCmd[0], &QAction::triggered, this, [this, help] { help(&instructions_); });
  connect(menus_.helpCmd[2], &QAction::triggered, this, [this, help] { help(&about_); });

  connect(hscroll_, &QScrollBar::valueChanged, this,
          [this](int v) { Run([this, v] { HScroll1_Change(g_, v); }); });
  connect(vscroll_, &QScrollBar::valueChanged, this,
          [this](int v) { Run([this, v] { VScroll1_Change(g_, v); }); });

  connect(panel_, &StatusPanel::toolDown, this,
          [this](int t) { Run([this, t] { ToolButtonDown(g_, t); }); });
  connect(panel_, &StatusPanel::toolUp, this,
          [this](int t) { Run([this, t] { ToolButtonUp(g_, t); }); });
  connect(panel_, &StatusPanel::label3Down, this,
          [this](int i, bool r) { Run([=, this] { Label3_MouseDown(g_, i, r); }); });
  connect(panel_, &StatusPanel::label3Up, this,
          [this](int i, bool r) { Run([=, this] { Label3_MouseUp(g_, i, r); }); });
  connect(panel_, &StatusPanel::label7Down, this,
          [this](bool r) { Run([=, this] { Label7_MouseDown(g_, r); }); });
  connect(panel_, &StatusPanel::label7Up, this,
          [this](bool r) { Run([=, this] { Label7_MouseUp(g_, r); }); });
  connect(panel_, &StatusPanel::label8Clicked, this, [this] { Run([this] { Label8_Click(g_); }); });
  connect(panel_->Map(), &OverviewMap::clicked, this,
          [this](double x, double y) { Run([=, this] { OverviewClick(g_, x, y); }); });
}

void DeskTop::ChooseLevel() {
  Run([this] { PauseForDialog(g_); });
  if (!chooser_) return;
  EnterModal();
  chooser_(this, g_, [this](int tier, int number) { PlayLevel(tier, number); });
  LeaveModal();
}

void DeskTop::PlayLevel(int tier, int number) {
  Run([this, tier, number] {
    g_.SkipTitle = False;
    g_.LevelFile = LevelPath(g_, tier, number);
    StopMusic(g_);
    OpenLevel(g_, g_.LevelFile);
  });
}

void DeskTop::keyPressEvent(QKeyEvent* event) {
  const int code = KeyCodeOf(*event, QGuiApplication::platformName());
  if (code == 0) return QMainWindow::keyPressEvent(event);
  keysDown_.insert(code);
  Run([this, code] { Form_KeyDown(g_, code); });
}

void DeskTop::keyReleaseEvent(QKeyEvent* event) {
  const int code = KeyCodeOf(*event, QGuiApplication::platformName());
  if (code == 0) return QMainWindow::keyReleaseEvent(event);
  if (event->isAutoRepeat()) return;    // one key up when the key is let go
  if (!keysDown_.remove(code)) return;  // pressed elsewhere: a menu, a dialog or a screen
  Run([this, code] { Form_KeyUp(g_, code); });
}

bool DeskTop::eventFilter(QObject* watched, QEvent* event) {
  const bool move = event->type() == QEvent::MouseMove;
  if (watched == background_ && event->type() == QEvent::FocusOut) {
    keysDown_.clear();  // a menu or another window takes the keys, and their releases
  } else if (watched == background_) {
    // Moves over the frame reach the background too, passed up from the controls: only the
    // bare background scrolls.
    const QPointF pos = move ? static_cast<QMouseEvent*>(event)->position() : QPointF();
    if (move && !background_->childAt(pos.toPoint())) BackgroundMouseMove(pos);
  } else if (move || event->type() == QEvent::Enter) {
    g_.ui.Timer3Enabled = false;
    SyncTimers();
  }
  return QMainWindow::eventFilter(watched, event);
}

void DeskTop::closeEvent(QCloseEvent* event) {
  timer1_.stop();
  timer2_.stop();
  timer3_.stop();
  if (keeper_) keeper_->Save(g_);
  keeper_.reset();  // saved once, however often the window is asked to close
  event->accept();
}

}  // namespace qb::ui
