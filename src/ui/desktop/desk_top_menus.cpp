// The play window's menu bar: four menus whose items are indexed as the command handlers expect.
#include "ui/desktop/desk_top_menus.h"

#include <string>

namespace qb::ui {
namespace {

template <std::size_t N>
void Fill(QMenu* menu, std::array<QAction*, N>& items, const std::array<const char*, N>& captions) {
  for (std::size_t i = 0; i < N; ++i) {
    const QString caption = QString::fromUtf8(captions[i]);
    items[i] = caption == "-" ? menu->addSeparator() : menu->addAction(caption);
  }
}

}  // namespace

DeskTopMenus BuildMenus(QMenuBar* bar, const Controls& ui) {
  DeskTopMenus m;
  m.menuCmd[0] = bar->addMenu("&Game");
  m.menuCmd[1] = bar->addMenu("&Level");
  m.menuCmd[2] = bar->addMenu("&Options");
  m.menuCmd[3] = bar->addMenu("&Help");

  Fill<3>(m.menuCmd[0], m.gameCmd, {"&Choose Level...", "-", "E&xit"});
  // The key names are part of the Level captions; the keys themselves reach the key handler.
  std::array<std::string, 7> level;
  for (int i = 0; i < 7; ++i) level[static_cast<std::size_t>(i)] = ui.LevelCmdCaption(i);
  Fill<7>(m.menuCmd[1], m.levelCmd,
          {level[0].c_str(), level[1].c_str(), level[2].c_str(), level[3].c_str(), level[4].c_str(),
           level[5].c_str(), level[6].c_str()});
  Fill<9>(m.menuCmd[2], m.optionsCmd,
          {"&Music", "&Sound", "-", "&Fast Scrolling", "Sm&art Scrolling", "-", "&Replay Levels",
           "-", "Show &Change"});
  Fill<3>(m.menuCmd[3], m.helpCmd, {"&How To Play...", "-", "&About Quorbit"});

  m.levelCmd[0]->setCheckable(true);
  m.levelCmd[1]->setCheckable(true);
  for (QAction* a : m.optionsCmd)
    if (!a->isSeparator()) a->setCheckable(true);
  m.helpCmd[0]->setShortcut(QKeySequence(Qt::Key_F1));
  return m;
}

}  // namespace qb::ui
