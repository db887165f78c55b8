// The editor's try window: its widgets, the level's load, the game timer and the attempt's end.
#include "app/editor/try_window.h"

#include <QFile>
#include <QFileInfo>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "level/loader.h"
#include "play/cycle.h"
#include "play/replay_header.h"
#include "ui/desktop/play_view.h"
#include "ui/desktop/qt_host.h"
#include "ui/desktop/status_panel.h"

namespace qb::editor {
namespace {

// The play window's overview scale: a full 120 by 80 level is drawn two pixels a square.
constexpr double kMapPixelsPerTwip = 240.0 / 3135.0;
constexpr int kSquarePixels = 14;

// The level file's name in the replay's header: the solution's name with .lvl, as the two are
// kept side by side.
QString LevelFileName(const QString& solutionPath) {
  if (solutionPath.isEmpty()) return "level.lvl";
  return QFileInfo(solutionPath).completeBaseName() + ".lvl";
}

QString EndText(const Game& g, LevelEnd end) {
  const QString counts = QString("%1 saved of %2 needed, %3 cycles.")
                             .arg(g.SavedCount)
                             .arg(g.CharactersNeeded)
                             .arg(g.attempt.cycles);
  switch (end) {
    case LevelEnd::Won:
      return "Won: " + counts;
    case LevelEnd::Lost:
      return "Lost: " + counts;
    case LevelEnd::Timeout:
      return "Lost, out of time: " + counts;
    default:
      return {};
  }
}

}  // namespace

TryWindow::TryWindow(const LevelData& level, const QString& solutionPath, QWidget* parent)
    : QDialog(parent), host_(std::make_unique<ui::QtHost>()), solutionPath_(solutionPath) {
  setObjectName("TryWindow");
  setModal(true);
  g_ = std::make_unique<Game>(*host_);
  Game& g = *g_;
  g.ui.Timer1Interval = 350;
  g.MusicState = "Stopped";
  g.ui.OptionsChecked(OptSound) = true;
  g.ui.OptionsChecked(OptReplay) = true;
  g.ui.OptionsChecked(OptShowChange) = true;
  g.SkipTitle = True;
  g.ReplayLog(0) = 'E';  // the first attempt replays nothing (a char: see SetUpLevel)
  BuildWidgets();
  ConnectCommands();

  const QString path = folder_.filePath(LevelFileName(solutionPath));
  QFile file(path);
  const std::vector<uint8_t> bytes = WriteLevel(level);
  if (!folder_.isValid() || !file.open(QIODevice::WriteOnly) ||
      file.write(reinterpret_cast<const char*>(bytes.data()), static_cast<qint64>(bytes.size())) !=
          static_cast<qint64>(bytes.size())) {
    result_->setText("The level could not be written to a temporary file: " + file.errorString());
  } else {
    file.close();
    g.LevelFile = path.toStdString();
    Run([this, &g, &path] {
      const LoadOutcome load = LoadLevel(g, g.LevelFile);
      loaded_ = load.Loaded();
      // The message names the level by its file's name, not the temporary folder's.
      if (!loaded_)
        result_->setText(
            QString::fromStdString(load.message).replace(path, QFileInfo(path).fileName()));
    });
  }
  // The level's title is Latin-1, one byte a character.
  if (loaded_) setWindowTitle("Try It: " + QString::fromLatin1(g.LevelTitle.c_str()));
  if (loaded_) result_->setText("Tools: keys 1 to 8. P pauses, Enter plays fast, Esc restarts.");
  ended_ = !loaded_;
  save_->setEnabled(loaded_);
  SyncFromModel();
  setFocus();
}

TryWindow::~TryWindow() = default;

void TryWindow::BuildWidgets() {
  setWindowTitle("Try It");  // with the level's title once it is loaded
  setFocusPolicy(Qt::StrongFocus);
  auto* column = new QVBoxLayout(this);
  auto* row = new QHBoxLayout();
  auto* viewGrid = new QGridLayout();
  viewGrid->setSpacing(0);
  view_ = new ui::PlayView(this);
  view_->setObjectName("Picture1");
  view_->SetSquareSize(kSquarePixels);
  hscroll_ = new QScrollBar(Qt::Horizontal, this);
  vscroll_ = new QScrollBar(Qt::Vertical, this);
  for (QScrollBar* bar : {hscroll_, vscroll_}) bar->setFocusPolicy(Qt::NoFocus);
  hscroll_->setPageStep(5);
  vscroll_->setPageStep(4);
  viewGrid->addWidget(view_, 0, 0);
  viewGrid->addWidget(vscroll_, 0, 1);
  viewGrid->addWidget(hscroll_, 1, 0);
  viewGrid->setRowStretch(2, 1);
  row->addLayout(viewGrid);
  panel_ = new ui::StatusPanel(this);
  row->addWidget(panel_, 0, Qt::AlignTop);
  column->addLayout(row);

  auto* bottom = new QHBoxLayout();
  result_ = new QLabel(this);
  result_->setObjectName("Result");
  result_->setWordWrap(true);
  bottom->addWidget(result_, 1);
  save_ = new QPushButton("Save Attempt as Solution...", this);
  auto* close = new QPushButton("Close", this);
  for (QPushButton* b : {save_, close}) {
    b->setFocusPolicy(Qt::NoFocus);  // the keys belong to the game
    b->setAutoDefault(false);
    bottom->addWidget(b);
  }
  column->addLayout(bottom);
  connect(save_, &QPushButton::clicked, this, [this] { SaveAttempt(); });
  connect(close, &QPushButton::clicked, this, &QDialog::accept);

  timer1_.setTimerType(Qt::PreciseTimer);
  connect(&timer1_, &QTimer::timeout, this, [this] { Tick(); });
}

void TryWindow::Run(const std::function<void()>& call) {
  try {
    call();
  } catch (const std::exception& e) {
    g_->ui.Timer1Enabled = false;
    ended_ = true;
    result_->setText("The game stopped because of a program fault: " + QString(e.what()) +
                     "\nRestart to try again.");
  }
  SyncFromModel();
}

void TryWindow::RunEnding(const std::function<LevelEnd()>& call) {
  if (ended_) return;
  Run([&] { Finish(call()); });
}

void TryWindow::Tick() {
  RunEnding([this] { return RunCycle(*g_); });
}

void TryWindow::Finish(LevelEnd end) {
  if (!Ended(end)) return;
  lastEnd_ = end;
  g_->ui.Timer1Enabled = false;
  ended_ = true;
  won_ = end == LevelEnd::Won;
  result_->setText(EndText(*g_, end) + " Esc tries again.");
  Q_EMIT attemptEnded(won_);
}

void TryWindow::SyncFromModel() {
  const Game& g = *g_;
  {
    const QSignalBlocker h(hscroll_), v(vscroll_);
    hscroll_->setRange(0, std::max(g.ui.HScrollMax, 0));
    hscroll_->setValue(g.ui.HScrollValue);
    vscroll_->setRange(0, std::max(g.ui.VScrollMax, 0));
    vscroll_->setValue(g.ui.VScrollValue);
  }
  view_->Sync(g_->pic.Picture1);
  panel_->Sync(g, kMapPixelsPerTwip);
  if (loaded_ && g.ui.Timer1Enabled && !ended_) {
    // A change of interval, or the rules stopping and starting it, starts a fresh interval.
    if (!timer1_.isActive() || timer1_.interval() != g.ui.Timer1Interval ||
        timer1Restarts_ != g.ui.Timer1Restarts)
      timer1_.start(std::max(g.ui.Timer1Interval, 1));
  } else {
    timer1_.stop();
  }
  timer1Restarts_ = g.ui.Timer1Restarts;
}

std::string TryWindow::AttemptReplay() const {
  if (!loaded_) return {};
  return FormatReplayFile(AttemptHeader(*g_, lastEnd_), qb::AttemptReplay(*g_));
}

}  // namespace qb::editor
