// The program's start: settings, the splash that loads the play window, and the level chooser.
#include "app/start_up.h"

#include <ostream>

#include "ui/desktop/qt_host.h"
#include "ui/screens/screens.h"

namespace qb::app {

StartUpSteps GameSteps() {
  StartUpSteps steps;
  steps.runSplash = [](const std::function<void()>& load) { ui::RunSplash(load); };
  steps.chooseLevel = ui::ShowChooseLevel;
  steps.instructions = ui::ShowInstructions;
  steps.about = ui::ShowAbout;
  return steps;
}

std::unique_ptr<ui::DeskTop> StartUp(Game& g, ui::QSettingsStore& store, const StartUpSteps& steps,
                                     std::ostream& notes, FirstLevel first) {
  g.ui.Timer1Interval = 350;
  g.MusicState = "Stopped";
  g.CurrentTrack = 0;
  for (const std::string& note : LoadSettings(g, store)) notes << "Settings: " << note << "\n";

  std::unique_ptr<ui::DeskTop> desk;
  const auto loadDeskTop = [&] {
    if (desk) return;  // loaded once, however long the splash stays
    desk = std::make_unique<ui::DeskTop>(g);
    if (auto* host = dynamic_cast<ui::QtHost*>(g.host)) host->SetWindow(desk.get());
    desk->SetSettingsStore(&store);
    ui::SetChooserRecords(&store);
    desk->SetChooser(steps.chooseLevel);
    desk->SetHelpDialogs(steps.instructions, steps.about);
    g.ui.Label8Caption = "Replay\nOn";
    desk->SyncFromModel();
    desk->show();
    desk->CentreOnScreen();
  };
  if (steps.runSplash) steps.runSplash(loadDeskTop);
  loadDeskTop();  // a splash that closed before its first tick still leaves a window
  desk->show();
  if (first.tier >= 0)
    desk->PlayLevel(first.tier, first.number);
  else
    desk->ChooseLevel();
  return desk;
}

}  // namespace qb::app
