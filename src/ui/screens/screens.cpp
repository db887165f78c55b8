// The entry points of the small screens, shown modally over the play window.
#include "ui/screens/screens.h"

#include <QApplication>
#include <QEventLoop>

#include "ui/screens/about_box.h"
#include "ui/screens/choose_level.h"
#include "ui/screens/instructions.h"
#include "ui/screens/reveal_screen.h"
#include "ui/screens/splash.h"
#include "ui/screens/won_game_screen.h"

namespace qb::ui {

void ShowScreen(QWidget* parent, Screen screen, const ScreenTexts& texts) {
  switch (screen) {
    case Screen::Title:
    case Screen::WinLevel:
    case Screen::LooseLevel: {
      RevealScreen dialog(screen, texts, parent);
      dialog.exec();
      return;
    }
    case Screen::WonGame: {
      WonGameScreen dialog(texts, parent);
      dialog.exec();
      return;
    }
    case Screen::ChooseLevel:
      // The chooser needs the game; the window opens it with ShowChooseLevel.
      return;
  }
}

void ShowChooseLevel(QWidget* parent, Game& g, const std::function<void(int, int)>& play) {
  std::optional<std::pair<int, int>> chosen;
  {
    ChooseLevel dialog(g, parent);
    dialog.exec();
    chosen = dialog.Chosen();
  }
  // The chooser is gone before the level loads, so the title card opens over the play window.
  if (chosen && play) play(chosen->first, chosen->second);
}

void ShowInstructions(QWidget* parent) {
  Instructions dialog(parent);
  dialog.exec();
}

void ShowAbout(QWidget* parent) {
  AboutBox dialog(parent);
  dialog.exec();
}

void RunSplash(const std::function<void()>& loadDeskTop) {
  Splash splash(loadDeskTop);
  QEventLoop loop;
  QObject::connect(&splash, &Splash::finished, &loop, &QEventLoop::quit);
  splash.show();
  loop.exec();
}

}  // namespace qb::ui
