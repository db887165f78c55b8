// The try window's commands: keys, the status panel's tools and labels, restart and saving the
// attempt. Each is a call of the game's rules; a level that ends stops the attempt here instead of
// loading the next level as the game does.
#include <QCloseEvent>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QMessageBox>
#include <QScrollBar>

#include "app/editor/try_window.h"
#include "draw/drawing.h"
#include "play/commands.h"
#include "play/level_commands.h"
#include "play/player_acts.h"
#include "play/replay.h"
#include "ui/desktop/key_codes.h"
#include "ui/desktop/status_panel.h"

namespace qb::editor {

void TryWindow::ConnectCommands() {
  Game& g = *g_;
  connect(hscroll_, &QScrollBar::valueChanged, this,
          [this, &g](int v) { Run([&g, v] { HScroll1_Change(g, v); }); });
  connect(vscroll_, &QScrollBar::valueChanged, this,
          [this, &g](int v) { Run([&g, v] { VScroll1_Change(g, v); }); });
  connect(panel_, &ui::StatusPanel::toolDown, this,
          [this, &g](int t) { RunEnding([&g, t] { return PressTool(g, t); }); });
  connect(panel_, &ui::StatusPanel::toolUp, this,
          [this, &g](int t) { RunEnding([&g, t] { return ToolReleased(g, t); }); });
  connect(panel_, &ui::StatusPanel::label3Down, this,
          [this, &g](int i, bool r) { Run([&g, i, r] { Label3_MouseDown(g, i, r); }); });
  connect(panel_, &ui::StatusPanel::label3Up, this, [this, &g](int i, bool r) {
    if (!ended_) Run([&g, i, r] { Label3_MouseUp(g, i, r); });
  });
  connect(panel_, &ui::StatusPanel::label7Down, this,
          [this, &g](bool r) { Run([&g, r] { Label7_MouseDown(g, r); }); });
  connect(panel_, &ui::StatusPanel::label7Up, this, [this, &g](bool r) {
    g.ui.Label7Back = kSystemWindow;
    if (!r) Restart();
    SyncFromModel();
  });
  connect(panel_, &ui::StatusPanel::label8Clicked, this,
          [this, &g] { Run([&g] { StopReplayByPlayer(g); }); });
  connect(panel_->Map(), &ui::OverviewMap::clicked, this,
          [this, &g](double x, double y) { Run([&g, x, y] { OverviewClick(g, x, y); }); });
}

void TryWindow::Restart() {
  if (!loaded_) return;
  Game& g = *g_;
  // As the game's Restart Level: with enough saved, the attempt ends won ("Win Level").
  if (!ended_ && g.SavedCount >= g.CharactersNeeded) return RunEnding([] { return LevelEnd::Won; });
  Run([&g] { RestartLevel(g); });
  ended_ = false;
  won_ = false;
  lastEnd_ = LevelEnd::None;
  ResultLabel()->setText("Tools: keys 1 to 8. P pauses, Enter plays fast, Esc restarts.");
  SyncFromModel();
}

void TryWindow::keyPressEvent(QKeyEvent* event) {
  const int code = ui::KeyCodeOf(*event, QGuiApplication::platformName());
  if (code == 0) return QDialog::keyPressEvent(event);  // not Esc: the dialog keeps its keys
  keysDown_.insert(code);
  Game& g = *g_;
  if (code >= Key1 && code <= Key8)
    RunEnding([&g, code] { return PressTool(g, code - Key1); });
  else if (!ended_)
    Run([&g, code] { Form_KeyDown(g, code); });
}

void TryWindow::keyReleaseEvent(QKeyEvent* event) {
  const int code = ui::KeyCodeOf(*event, QGuiApplication::platformName());
  if (code == 0) return QDialog::keyReleaseEvent(event);
  if (event->isAutoRepeat() || !keysDown_.remove(code)) return;
  Game& g = *g_;
  if (code == KeyEscape) {
    g.ui.Label7Back = kSystemWindow;
    Restart();
  } else if (!ended_ || (code >= KeyLeft && code <= KeyDown)) {  // scrolling goes on after
    Run([&g, code] { Form_KeyUp(g, code); });
  }
}

void TryWindow::closeEvent(QCloseEvent* event) {
  timer1_.stop();
  QDialog::closeEvent(event);
}

QString TryWindow::SaveSolution(const QString& path) const {
  const std::string text = AttemptReplay();
  if (text.empty()) return "There is no attempt to save.";
  QDir().mkpath(QFileInfo(path).absolutePath());
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) ||
      file.write(text.data(), static_cast<qint64>(text.size())) < 0 || !file.flush())
    return "The solution could not be written to " + path + ": " + file.errorString();
  return {};
}

void TryWindow::SaveAttempt() {
  Game& g = *g_;
  if (!ended_) Run([&g] { PauseForDialog(g); });
  QString path = solutionPath_;
  if (path.isEmpty())
    path = QFileDialog::getSaveFileName(this, "Save Attempt as Solution", QDir::homePath(),
                                        "Replays (*.replay)");
  if (path.isEmpty()) return;
  if (const QString error = SaveSolution(path); !error.isEmpty()) {
    QMessageBox::warning(this, "Save Attempt as Solution", error);
    return;
  }
  ResultLabel()->setText(ResultLabel()->text() + "\nSaved as " + QDir::toNativeSeparators(path) +
                         ".");
}

}  // namespace qb::editor
