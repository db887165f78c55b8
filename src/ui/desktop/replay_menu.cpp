// The "Replay" menu of the play window, and what is kept after every win.
#include "ui/desktop/replay_menu.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenuBar>
#include <QStandardPaths>

#include "core/file_read.h"
#include "core/records.h"
#include "core/sha256.h"
#include "level/loader.h"
#include "play/cycle.h"
#include "play/level_commands.h"
#include "play/replay.h"
#include "play/replay_header.h"
#include "ui/desktop/desk_top.h"
#include "ui/desktop/qsettings_store.h"

namespace qb::ui {
namespace {

std::optional<std::string> ReadAll(const QString& path) {
  const FileRead file = ReadSmallFile(path.toStdString(), kMaxTextFileBytes);
  if (!file.bytes) return std::nullopt;
  return std::string(file.bytes->begin(), file.bytes->end());
}

bool Paused(const Game& g) {
  return g.ui.Frame1Visible && !g.ui.Timer1Enabled;
}

}  // namespace

ReplayMenu::ReplayMenu(DeskTop* desk) : QObject(desk), desk_(desk) {
  QMenuBar* bar = desk->menuBar();
  menu = new QMenu("Re&play", bar);
  bar->insertMenu(desk->Menus().menuCmd[3]->menuAction(), menu);
  saveReplay = menu->addAction("&Save Replay...");
  saveReplay->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_S));
  loadReplay = menu->addAction("&Load Replay...");
  loadReplay->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_O));
  watchSolution = menu->addAction("&Watch Solution");
  menu->addSeparator();
  step = menu->addAction("S&tep");
  step->setShortcut(QKeySequence(Qt::Key_Period));
  stepBack = menu->addAction("Step &Back");
  stepBack->setShortcut(QKeySequence(Qt::Key_Comma));
  menu->addSeparator();
  stayPaused = menu->addAction("Stay &Paused for Tools");
  stayPaused->setCheckable(true);

  Game& g = desk->game();
  connect(saveReplay, &QAction::triggered, this, [this, &g] {
    desk_->Run([&g] { PauseForDialog(g); });
    const QString name = QString::fromStdString(RecordKey(g.LevelFile)) + ".replay";
    desk_->EnterModal();
    const QString path = QFileDialog::getSaveFileName(
        desk_, "Save Replay", QDir(ReplaysFolder()).filePath(name), "Replays (*.replay)");
    desk_->LeaveModal();
    if (path.isEmpty()) return;
    if (const QString error = SaveTo(path); !error.isEmpty())
      g.host->ShowMessage(error.toStdString(), "Quorbit");
  });
  connect(loadReplay, &QAction::triggered, this, [this, &g] {
    desk_->Run([&g] { PauseForDialog(g); });
    desk_->EnterModal();
    const QString path = QFileDialog::getOpenFileName(desk_, "Load Replay", ReplaysFolder(),
                                                      "Replays (*.replay);;All files (*)");
    desk_->LeaveModal();
    if (path.isEmpty()) return;
    if (const QString message = LoadFrom(path); !message.isEmpty())
      g.host->ShowMessage(message.toStdString(), "Quorbit");
  });
  connect(watchSolution, &QAction::triggered, this, [this, &g] {
    const QString level = QString::fromStdString(RecordKey(g.LevelFile));
    const QString path =
        QDir(QString::fromStdString(g.ProgramFolder)).filePath("Solutions/" + level + ".replay");
    if (const QString message = LoadFrom(path); !message.isEmpty())
      g.host->ShowMessage(message.toStdString(), "Quorbit");
  });
  connect(step, &QAction::triggered, this, &ReplayMenu::Step);
  connect(stepBack, &QAction::triggered, this, &ReplayMenu::StepBack);
  connect(stayPaused, &QAction::toggled, this, [this, &g](bool on) {
    if (g.ui.StayPausedForTools == on) return;
    g.ui.StayPausedForTools = on;
    if (QSettingsStore* store = desk_->Store()) {
      SaveSettings(g, *store);
      store->Flush();
    }
  });
  connect(menu, &QMenu::aboutToShow, this, &ReplayMenu::Sync);
  connect(desk, &DeskTop::modelSynced, this, &ReplayMenu::Notice);
  Sync();
}

QString ReplayMenu::ReplaysFolder() {
  return QDir(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation))
      .filePath("replays");
}

QString ReplayMenu::CurrentReplay() const {
  const Game& g = desk_->game();
  const bool underWay = g.ui.Frame1Visible && (g.attempt.cycles > 0 || !g.attempt.acts.empty());
  if (!underWay && g.lastFinished.count > 0) return QString::fromStdString(g.lastFinished.replay);
  if (!g.ui.Frame1Visible) return {};
  return QString::fromStdString(
      FormatReplayFile(AttemptHeader(g, LevelEnd::None), AttemptReplay(g)));
}

QString ReplayMenu::SaveTo(const QString& path) const {
  const QString text = CurrentReplay();
  if (text.isEmpty()) return "There is no attempt to save yet.";
  QDir().mkpath(QFileInfo(path).absolutePath());
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(text.toUtf8()) < 0 ||
      !file.flush())
    return "The replay could not be written to " + path + ": " + file.errorString();
  return {};
}

QString ReplayMenu::LoadFrom(const QString& path) {
  Game& g = desk_->game();
  const auto text = ReadAll(path);
  if (!text) return "The replay file " + path + " cannot be read.";
  const ReplayFile replay = ParseReplay(*text);
  if (!replay.error.empty())
    return "The replay file " + path + " is not a replay: " + QString::fromStdString(replay.error) +
           ".";
  const ReplayHeader header = ReadReplayHeader(*text);
  const std::string level = header.level.empty()
                                ? QFileInfo(path).completeBaseName().toStdString() + ".lvl"
                                : header.level;
  const std::string levelPath = g.ProgramFolder + "/Levels/" + level;
  const FileRead file = g.host->ReadFile(levelPath);
  if (!file.bytes)
    return QString::fromStdString("The level " + level +
                                  " the replay was played on is not in the Levels folder.");
  QString warning;
  if (!header.sha256.empty() &&
      Sha256Hex(std::string(file.bytes->begin(), file.bytes->end())) != header.sha256)
    warning = QString::fromStdString("The level " + level +
                                     " has changed since this replay was recorded; it is played "
                                     "anyway and may go differently.");

  desk_->Run([&] {
    const Game before = g;
    for (int t = 0; t < kReplaySlots; ++t)
      g.ReplayLog(t) = replay.slots[static_cast<std::size_t>(t)];
    if (!g.ui.Option(OptReplay)) g.ui.OptionsChecked(OptReplay) = true;  // a replay asked for
    g.SkipTitle = True;
    g.LevelFile = levelPath;
    const LoadOutcome outcome = LoadLevel(g, levelPath);
    if (outcome.Loaded()) {
      g.pic.Picture1.MarkAllChanged();
    } else {
      g = before;
      warning = QString::fromStdString(outcome.message);
    }
  });
  return warning;
}

void ReplayMenu::Step() {
  Game& g = desk_->game();
  if (!g.ui.Frame1Visible) return;
  if (!Paused(g)) {
    desk_->Run([&g] { LevelCmd_Click(g, CmdPause); });
    return;
  }
  desk_->Run([&g] { Timer1_Timer(g); });
}

void ReplayMenu::StepBack() {
  Game& g = desk_->game();
  if (!g.ui.Frame1Visible) return;
  if (!Paused(g)) desk_->Run([&g] { LevelCmd_Click(g, CmdPause); });
  desk_->Run([&] {
    if (history_.StepBack(g)) g.pic.Picture1.MarkAllChanged();
  });
}

void ReplayMenu::Notice() {
  Game& g = desk_->game();
  history_.Keep(g);
  if (g.lastFinished.count != seenFinished_) {
    seenFinished_ = g.lastFinished.count;
    if (g.lastFinished.won) SaveWin();
  }
  if (stayPaused->isChecked() != g.ui.StayPausedForTools)
    stayPaused->setChecked(g.ui.StayPausedForTools);
}

void ReplayMenu::SaveWin() {
  const Game& g = desk_->game();
  const QDateTime now = QDateTime::currentDateTime();
  const QString name = QString::fromStdString(RecordKey(g.lastFinished.level)) + " " +
                       now.toString("yyyy-MM-dd HH.mm.ss") + ".replay";
  QDir().mkpath(ReplaysFolder());
  QFile file(QDir(ReplaysFolder()).filePath(name));
  if (!file.open(QIODevice::WriteOnly) ||
      file.write(QByteArray::fromStdString(g.lastFinished.replay)) < 0 || !file.flush())
    qWarning("The won attempt could not be saved as %s", qPrintable(file.fileName()));
  file.close();
  if (QSettingsStore* store = desk_->Store()) {
    RecordWin(*store, g.lastFinished, now.toString("yyyy-MM-dd").toStdString());
    store->Flush();
  }
}

void ReplayMenu::Sync() {
  const Game& g = desk_->game();
  const bool playing = g.ui.Frame1Visible;
  saveReplay->setEnabled(playing || g.lastFinished.count > 0);
  step->setEnabled(playing);
  stepBack->setEnabled(playing && g.attempt.cycles > 0);
  bool won = false;
  if (QSettingsStore* store = desk_->Store())
    won = playing && ReadRecord(*store, RecordKey(g.LevelFile)).has_value();
  watchSolution->setEnabled(won);
}

}  // namespace qb::ui
