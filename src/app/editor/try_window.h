// The editor's try window: plays the level being edited with the game's own view and rules.
#pragma once

#include <QDialog>
#include <QSet>
#include <QTemporaryDir>
#include <QTimer>
#include <functional>
#include <memory>
#include <string>

#include "core/game.h"
#include "core/level_file.h"

class QLabel;
class QPushButton;
class QScrollBar;

namespace qb::ui {
class PlayView;
class QtHost;
class StatusPanel;
}  // namespace qb::ui

namespace qb::editor {

// A modal dialog; plays the level at normal speed. The level is written to a temporary file with
// the game's writer and loaded with the game's loader, so it plays exactly as its file will.
class TryWindow : public QDialog {
  Q_OBJECT
 public:
  // `level`: the level as edited; `solutionPath`: where "Save Attempt as Solution" writes (the
  // level's path with .replay, or empty for a save dialog).
  TryWindow(const qb::LevelData& level, const QString& solutionPath, QWidget* parent = nullptr);
  ~TryWindow() override;

  bool Won() const { return won_; }  // the last attempt won
  // The last attempt as replay text (data/solutions form): "#" lines naming the level, its
  // SHA-256 and the result, then one "<cycle> <letters>" line a cycle with tools.
  std::string AttemptReplay() const;
  qb::Game& game() { return *g_; }  // for tests: the game being played

  // Writes the attempt as the solution to `path`; an empty string, or why it failed.
  QString SaveSolution(const QString& path) const;
  // One tick of the game timer: one cycle (tests may call it instead of waiting).
  void Tick();
  // Restart Level: the level again from its file, or, with enough saved, the attempt ends won.
  void Restart();
  QLabel* ResultLabel() const { return result_; }

 Q_SIGNALS:
  void attemptEnded(bool won);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  void BuildWidgets();
  void ConnectCommands();
  // Every call into the rules goes through here: a fault stops the attempt with a message
  // instead of ending the editor; the window shows the model afterwards.
  void Run(const std::function<void()>& call);
  // A call that may end the level; the end stops the attempt and says how it went.
  void RunEnding(const std::function<LevelEnd()>& call);
  void Finish(LevelEnd end);
  void SyncFromModel();
  void SaveAttempt();

  QTemporaryDir folder_;
  std::unique_ptr<ui::QtHost> host_;
  std::unique_ptr<Game> g_;
  bool loaded_ = false;
  bool ended_ = false;
  bool won_ = false;
  LevelEnd lastEnd_ = LevelEnd::None;  // how the attempt shown ended; None while it runs
  QString solutionPath_;
  QSet<int> keysDown_;  // keys pressed here whose release has not come

  ui::PlayView* view_ = nullptr;
  ui::StatusPanel* panel_ = nullptr;
  QScrollBar* hscroll_ = nullptr;
  QScrollBar* vscroll_ = nullptr;
  QLabel* result_ = nullptr;
  QPushButton* save_ = nullptr;
  QTimer timer1_;
  int timer1Restarts_ = 0;
};

}  // namespace qb::editor
