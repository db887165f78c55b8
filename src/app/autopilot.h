// Unattended runs for the end-to-end test and screenshots: answers modal screens, presses keys,
// switches to fast play, grabs pictures and quits after a while.
#pragma once

#include <QObject>
#include <QString>
#include <QTimer>
#include <map>
#include <vector>

#include "ui/desktop/desk_top.h"

namespace qb::app {

struct AutopilotOptions {
  QString shotsFolder;       // pictures of every modal screen and of the window go here
  int screenDelayMs = 1800;  // how long a modal screen stays up before it is answered
  bool fast = false;         // switch to fast play once a level runs
  std::vector<std::pair<long, int>> keys;  // (cycle, Qt key): pressed and released then
  QString replayText;                      // tools to replay in the level played first
  int quitAfterMs = 0;                     // closes the window then (0: never)
  QString finalShot;                       // the play window's picture at the end
  bool report = false;                     // prints the cycles run and squares painted at the end
};

class Autopilot : public QObject {
  Q_OBJECT
 public:
  explicit Autopilot(const AutopilotOptions& options, QObject* parent = nullptr);
  // Starts answering modal screens; the window is known only once the splash has loaded it.
  void Start();
  void Attach(ui::DeskTop* desk);
  // Hands the replay's tools to the game's own replay of the level just loaded.
  bool StartReplay(Game& g);

 private:
  void Poll();
  void OnCycle(long cycles);
  void Finish();

  AutopilotOptions options_;
  ui::DeskTop* desk_ = nullptr;
  QTimer poll_;
  QObject* modal_ = nullptr;
  qint64 modalSince_ = 0;
  int shots_ = 0;
  std::size_t nextKey_ = 0;
  bool finishPending_ = false;
  bool fastDone_ = false;
  long fastFrom_ = -1;    // cycles run when fast play began
  long paintedFrom_ = 0;  // squares painted by then
  long fastCycles_ = -1;  // cycles run in the first 10 s of fast play
  long fastPainted_ = 0;  // squares painted in them
};

}  // namespace qb::app
