// The "Replay" menu of the play window: saving and loading replays, the shipped solution of a
// won level, stepping one cycle forward or back while paused; and, after every win, the replay
// kept in the player's data folder and the level's record in the settings.
#pragma once

#include <QAction>
#include <QMenu>
#include <QObject>
#include <QString>

#include "play/step_history.h"

namespace qb::ui {

class DeskTop;

class ReplayMenu : public QObject {
  Q_OBJECT
 public:
  explicit ReplayMenu(DeskTop* desk);

  QMenu* menu = nullptr;
  QAction* saveReplay = nullptr;
  QAction* loadReplay = nullptr;
  QAction* watchSolution = nullptr;
  QAction* step = nullptr;
  QAction* stepBack = nullptr;
  QAction* stayPaused = nullptr;

  // The replay file text Save Replay writes: the attempt under way, or else the last finished.
  QString CurrentReplay() const;
  // Writes CurrentReplay() to `path`; an error text, or empty when written.
  QString SaveTo(const QString& path) const;
  // Loads the level a replay file names and plays the replay. Returns the message the player
  // is shown (a refusal, with the game untouched, or the warning of a changed level), or empty.
  QString LoadFrom(const QString& path);
  void Step();
  void StepBack();

  // Where won attempts are saved: the per-user data folder's "replays".
  static QString ReplaysFolder();

  // Notes the model after every change: keeps copies for stepping back, saves a new win.
  void Notice();

 private:
  void SaveWin();
  void Sync();

  DeskTop* desk_;
  StepHistory history_;
  int seenFinished_ = 0;
};

}  // namespace qb::ui
