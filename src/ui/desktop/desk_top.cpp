// DeskTop, the play window: its widgets, the model sync and the fault guard.
#include "ui/desktop/desk_top.h"

#include <QApplication>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QSignalBlocker>

#include "level/music.h"
#include "play/commands.h"
#include "play/cycle.h"
#include "play/level_commands.h"
#include "ui/desktop/replay_menu.h"
#include "ui/desktop/twips.h"

namespace qb::ui {
namespace {

// A full 120 by 80 level's overview (3135 by 1935 twips) is drawn two pixels a square.
constexpr double kMapPixelsPerTwip = 240.0 / 3135.0;
constexpr int kFrameMargin = 6;

FaultChoice AskAfterFault(QWidget* parent, const QString& what) {
  QMessageBox box(QMessageBox::Warning, "Quorbit",
                  "The game stopped because of a program fault:\n" + what +
                      "\n\nYou can restart the level or choose another one.",
                  QMessageBox::NoButton, parent);
  QPushButton* restart = box.addButton("&Restart Level", QMessageBox::AcceptRole);
  QPushButton* choose = box.addButton("&Choose Level...", QMessageBox::ActionRole);
  box.addButton(QMessageBox::Close);
  box.exec();
  if (box.clickedButton() == restart) return FaultChoice::Restart;
  if (box.clickedButton() == choose) return FaultChoice::ChooseLevel;
  return FaultChoice::Close;
}

}  // namespace

DeskTop::DeskTop(Game& g, QWidget* parent) : QMainWindow(parent), g_(g) {
  setObjectName("DeskTop");
  menus_ = BuildMenus(menuBar(), g_.ui);
  BuildFrame();
  ConnectCommands();
  replay_ = new ReplayMenu(this);
  faultReport_ = AskAfterFault;

  timer1_.setTimerType(Qt::PreciseTimer);
  connect(&timer1_, &QTimer::timeout, this, &DeskTop::Tick);
  timer2_.setInterval(500);
  connect(&timer2_, &QTimer::timeout, this, [this] { Run([this] { Timer2_Timer(g_); }); });
  timer3_.setInterval(12);
  connect(&timer3_, &QTimer::timeout, this, &DeskTop::OnTimer3);

  const int panelWidth = panel_->sizeHint().width();
  setMinimumSize(kViewSize * 12 + panelWidth + 80, kViewSize * 12 + 120);
  resize(kViewSize * 16 + panelWidth + 100, kViewSize * 16 + 150);
  SyncFromModel();
}

void DeskTop::BuildFrame() {
  background_ = new QWidget(this);
  background_->setObjectName("Background");
  background_->setMouseTracking(true);
  background_->setFocusPolicy(Qt::StrongFocus);
  background_->installEventFilter(this);
  setCentralWidget(background_);

  frame1_ = new QFrame(background_);
  frame1_->setObjectName("Frame1");
  frame1_->setFrameStyle(QFrame::Panel | QFrame::Sunken);
  auto* row = new QHBoxLayout(frame1_);
  row->setContentsMargins(kFrameMargin, kFrameMargin, kFrameMargin, kFrameMargin);
  row->setSpacing(kFrameMargin);
  auto* viewGrid = new QGridLayout();
  viewGrid->setSpacing(0);
  view_ = new PlayView(frame1_);
  view_->setObjectName("Picture1");
  hscroll_ = new QScrollBar(Qt::Horizontal, frame1_);
  vscroll_ = new QScrollBar(Qt::Vertical, frame1_);
  for (QScrollBar* bar : {hscroll_, vscroll_}) bar->setFocusPolicy(Qt::NoFocus);
  hscroll_->setPageStep(5);  // LargeChange
  vscroll_->setPageStep(4);
  viewGrid->addWidget(view_, 0, 0);
  viewGrid->addWidget(vscroll_, 0, 1);
  viewGrid->addWidget(hscroll_, 1, 0);
  viewGrid->setRowStretch(2, 1);  // the bar stays under the view when the panel is taller
  row->addLayout(viewGrid);
  panel_ = new StatusPanel(frame1_);
  row->addWidget(panel_, 0, Qt::AlignTop);

  // Any mouse movement over the frame or one of its controls stops edge scrolling.
  frame1_->setMouseTracking(true);
  frame1_->installEventFilter(this);
  for (QWidget* w : frame1_->findChildren<QWidget*>()) {
    w->setMouseTracking(true);
    w->installEventFilter(this);
  }
}

void DeskTop::SetHelpDialogs(Dialog instructions, Dialog about) {
  instructions_ = std::move(instructions);
  about_ = std::move(about);
}

double DeskTop::Dpi() const {
  return logicalDpiX() > 0 ? logicalDpiX() : 96.0;
}

QSizeF DeskTop::OuterTwips() const {
  const QRect outer = frameGeometry();
  return {PixelsToTwips(outer.width(), Dpi()), PixelsToTwips(outer.height(), Dpi())};
}

void DeskTop::SyncFromModel() {
  const Controls& ui = g_.ui;
  const QString caption = QString::fromStdString(ui.Caption);
  if (windowTitle() != caption) setWindowTitle(caption);
  if (frame1_->isVisibleTo(this) != ui.Frame1Visible) frame1_->setVisible(ui.Frame1Visible);
  SyncMenus();
  SyncScrollBars();
  view_->Sync(g_.pic.Picture1);
  panel_->Sync(g_, kMapPixelsPerTwip);
  SyncTimers();
  Q_EMIT modelSynced();
}

void DeskTop::SyncMenus() {
  const Controls& ui = g_.ui;
  for (int i = 0; i < 7; ++i) {
    QAction* a = menus_.levelCmd[static_cast<std::size_t>(i)];
    if (a->isSeparator()) continue;
    const QString caption = QString::fromStdString(ui.LevelCmdCaption(i));
    if (a->text() != caption) a->setText(caption);
    if (a->isCheckable()) a->setChecked(ui.LevelCmdChecked(i));
  }
  for (int i = 0; i < 9; ++i) {
    QAction* a = menus_.optionsCmd[static_cast<std::size_t>(i)];
    if (a->isCheckable()) a->setChecked(ui.OptionsChecked(i));
  }
}

void DeskTop::SyncScrollBars() {
  const Controls& ui = g_.ui;
  const QSignalBlocker h(hscroll_), v(vscroll_);
  hscroll_->setRange(0, std::max(ui.HScrollMax, 0));
  hscroll_->setValue(ui.HScrollValue);
  vscroll_->setRange(0, std::max(ui.VScrollMax, 0));
  vscroll_->setValue(ui.VScrollValue);
}

void DeskTop::SyncTimers() {
  const Controls& ui = g_.ui;
  // The music keep-alive runs always, so a track that ends under a screen starts again.
  if (!timer2_.isActive()) timer2_.start();
  if (modalDepth_ > 0) {
    timer1_.stop();
    timer3_.stop();
    timer1Restarts_ = ui.Timer1Restarts;
    return;
  }
  if (ui.Timer1Enabled) {
    // A change of interval, or "Enabled False then True" in the rules, starts a fresh interval.
    if (!timer1_.isActive() || timer1_.interval() != ui.Timer1Interval ||
        timer1Restarts_ != ui.Timer1Restarts)
      timer1_.start(std::max(ui.Timer1Interval, 1));
  } else {
    timer1_.stop();
  }
  timer1Restarts_ = ui.Timer1Restarts;
  if (ui.Timer3Enabled && !timer3_.isActive()) timer3_.start();
  if (!ui.Timer3Enabled) timer3_.stop();
}

void DeskTop::EnterModal() {
  ++modalDepth_;
  keysDown_.clear();  // their releases go to the modal window
  SyncFromModel();
  KeepSettings();  // a won level is saved before the next level's title card
}

void DeskTop::LeaveModal() {
  if (modalDepth_ > 0) --modalDepth_;
  SyncFromModel();
  KeepSettings();
}

void DeskTop::SetSettingsStore(QSettingsStore* store) {
  keeper_.reset();
  store_ = store;
  if (!store) return;
  keeper_ = std::make_unique<SettingsKeeper>(*store, g_, [this](const std::string& text) {
    if (g_.host) g_.host->ShowMessage(text, "Quorbit");
  });
}

void DeskTop::KeepSettings() {
  if (keeper_) keeper_->SaveIfChanged(g_);
}

bool DeskTop::Run(const std::function<void()>& call) {
  bool ok = true;
  try {
    call();
  } catch (const std::exception& e) {
    ok = false;
    ReportFault(QString::fromStdString(e.what()));
  }
  SyncFromModel();
  KeepSettings();
  return ok;
}

void DeskTop::ReportFault(const QString& what) {
  g_.ui.Timer1Enabled = false;
  g_.ui.Timer3Enabled = false;
  if (inFault_) return;  // a fault while answering a fault: the first report stands
  inFault_ = true;
  EnterModal();
  const FaultChoice choice = faultReport_ ? faultReport_(this, what) : FaultChoice::Close;
  LeaveModal();
  inFault_ = false;
  if (choice == FaultChoice::Restart)
    Run([this] { LevelCmd_Click(g_, 3); });
  else if (choice == FaultChoice::ChooseLevel)
    ChooseLevel();
}

void DeskTop::Tick() {
  if (modalDepth_ > 0) return;
  Run([this] { Timer1_Timer(g_); });
  ++cycles_;
  Q_EMIT cycleRan(cycles_);
}

void DeskTop::OnTimer3() {
  const QSizeF outer = OuterTwips();
  Run([&] {
    ScrollMe(g_, RoundTwips(mouseX_), RoundTwips(mouseY_), RoundTwips(outer.width()),
             RoundTwips(outer.height()));
  });
}

void DeskTop::BackgroundMouseMove(const QPointF& pos) {
  mouseX_ = PixelsToTwips(pos.x(), Dpi());
  mouseY_ = PixelsToTwips(pos.y(), Dpi());
  if (!g_.ui.Frame1Visible) return;
  OnTimer3();
}

void DeskTop::CentreOnScreen() {
  const QScreen* s = screen() ? screen() : QGuiApplication::primaryScreen();
  if (!s) return;
  const QRect area = s->availableGeometry();
  const QRect outer = frameGeometry();
  move(area.x() + (area.width() - outer.width()) / 2,
       area.y() + (area.height() - outer.height()) / 2);
}

void DeskTop::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  LayOut();
}

void DeskTop::LayOut() {
  if (isMinimized()) return;
  // The largest square size whose frame, placed by the centring rule, fits the client area.
  const QSize client = background_->size();
  const QSizeF outer = OuterTwips();
  const int panelWidth = panel_->sizeHint().width();
  const int largest =
      std::max(12, std::min(client.width() - panelWidth, client.height()) / kViewSize);
  QPoint place;
  for (int square = largest; square >= 12; --square) {
    view_->SetSquareSize(square);
    // The frame's layout learns of the view's new size now, not at the next resize.
    frame1_->layout()->invalidate();
    frame1_->layout()->activate();
    frame1_->adjustSize();
    place = FramePlace(outer, frame1_->size());
    const QRect r(place, frame1_->size());
    if (square == 12 || background_->rect().contains(r)) break;
  }
  view_->Sync(g_.pic.Picture1);
  frame1_->move(place);
}

QPoint DeskTop::FramePlace(const QSizeF& outerTwips, const QSize& frame) const {
  // Centred with the window's bias, 55 twips left and 400 twips up of the middle of the outer
  // window (title and menu bars included), in client coordinates.
  const double left = outerTwips.width() / 2 - PixelsToTwips(frame.width(), Dpi()) / 2 - 55;
  const double top = outerTwips.height() / 2 - PixelsToTwips(frame.height(), Dpi()) / 2 - 400;
  return {static_cast<int>(std::lround(TwipsToPixels(left, Dpi()))),
          static_cast<int>(std::lround(TwipsToPixels(top, Dpi())))};
}

}  // namespace qb::ui
