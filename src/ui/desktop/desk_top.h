// DeskTop, the play window: turns the player's events into calls of the rules and shows the model.
#pragma once

#include <QFrame>
#include <QMainWindow>
#include <QScrollBar>
#include <QSet>
#include <QTimer>
#include <functional>
#include <memory>

#include "core/game.h"
#include "core/settings.h"
#include "ui/desktop/desk_top_menus.h"
#include "ui/desktop/play_view.h"
#include "ui/desktop/qsettings_store.h"
#include "ui/desktop/settings_keeper.h"
#include "ui/desktop/status_panel.h"

namespace qb::ui {

class ReplayMenu;

// What the player chose after a fault stopped the game.
enum class FaultChoice { Restart, ChooseLevel, Close };

class DeskTop : public QMainWindow {
  Q_OBJECT
 public:
  using Chooser = std::function<void(QWidget*, Game&, const std::function<void(int, int)>&)>;
  using Dialog = std::function<void(QWidget*)>;
  using FaultReport = std::function<FaultChoice(QWidget*, const QString&)>;

  explicit DeskTop(Game& g, QWidget* parent = nullptr);

  // Shows the control model: caption, menus, scroll bars, view, status panel and timers.
  void SyncFromModel();
  // Every call into the rules from an event goes through here: a fault stops the game and is
  // reported; the window is synced afterwards. Returns false when the call faulted.
  bool Run(const std::function<void()>& call);

  // While a modal screen is up the timers stand still; they follow the model again after.
  void EnterModal();
  void LeaveModal();

  // The Game menu's "&Choose Level...", and what choosing a level does.
  void ChooseLevel();
  void PlayLevel(int tier, int number);
  // Puts the window in the middle of its screen.
  void CentreOnScreen();
  // One tick of the game timer: one game cycle.
  void Tick();

  // The settings are written there at exit, and whenever they change in between.
  void SetSettingsStore(QSettingsStore* store);
  void SetChooser(Chooser chooser) { chooser_ = std::move(chooser); }
  void SetHelpDialogs(Dialog instructions, Dialog about);
  void SetFaultReport(FaultReport report) { faultReport_ = std::move(report); }

  Game& game() { return g_; }
  const DeskTopMenus& Menus() const { return menus_; }
  ReplayMenu* Replay() const { return replay_; }
  QSettingsStore* Store() const { return store_; }
  QWidget* Background() const { return background_; }
  QFrame* Frame1() const { return frame1_; }
  PlayView* Picture1() const { return view_; }
  StatusPanel* Panel() const { return panel_; }
  QScrollBar* HScroll1() const { return hscroll_; }
  QScrollBar* VScroll1() const { return vscroll_; }
  QTimer& Timer1() { return timer1_; }
  QTimer& Timer2() { return timer2_; }
  QTimer& Timer3() { return timer3_; }
  long CyclesRun() const { return cycles_; }
  // The window's outer size in twips, as the edge-scroll rule measures it.
  QSizeF OuterTwips() const;
  // Where Frame1 goes for a window of that outer size in twips.
  QPoint FramePlace(const QSizeF& outerTwips, const QSize& frame) const;

 Q_SIGNALS:
  void cycleRan(long cycles);
  // After every sync of the window with the model (each command, tick and modal screen).
  void modelSynced();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void BuildFrame();
  void ConnectCommands();
  void LayOut();
  void SyncMenus();
  void SyncScrollBars();
  void SyncTimers();
  void OnTimer3();
  void BackgroundMouseMove(const QPointF& pos);
  void ReportFault(const QString& what);
  void KeepSettings();
  double Dpi() const;

  Game& g_;
  DeskTopMenus menus_;
  ReplayMenu* replay_ = nullptr;
  QWidget* background_ = nullptr;
  QFrame* frame1_ = nullptr;
  PlayView* view_ = nullptr;
  StatusPanel* panel_ = nullptr;
  QScrollBar* hscroll_ = nullptr;
  QScrollBar* vscroll_ = nullptr;
  QTimer timer1_, timer2_, timer3_;
  int timer1Restarts_ = 0;
  int modalDepth_ = 0;
  // Keys whose press reached this window and whose release has not: only their releases count,
  // so a key that closed a menu, a dialog or a screen does nothing here when it is let go.
  QSet<int> keysDown_;
  bool inFault_ = false;
  long cycles_ = 0;
  double mouseX_ = 0, mouseY_ = 0;  // last mouse position over the background, in twips
  QSettingsStore* store_ = nullptr;  // where the settings and the records are kept
  std::unique_ptr<SettingsKeeper> keeper_;
  Chooser chooser_;
  Dialog instructions_, about_;
  FaultReport faultReport_;
};

}  // namespace qb::ui
