// Renders every screen and the tool icons to PNG files, to look at them by eye:
//   screens_gallery OUTPUT_FOLDER
#include <QApplication>
#include <QDir>
#include <QPainter>
#include <QWidget>
#include <cstdio>

#include "level/screens.h"
#include "support/recorder_host.h"
#include "ui/screens/about_box.h"
#include "ui/screens/art.h"
#include "ui/screens/choose_level.h"
#include "ui/screens/instructions.h"
#include "ui/screens/reveal_screen.h"
#include "ui/screens/screens.h"
#include "ui/screens/splash.h"
#include "ui/screens/won_game_screen.h"

namespace {

QString folder;

void Save(QWidget& w, const QString& name) {
  w.show();
  w.adjustSize();
  QApplication::processEvents();
  const QString path = folder + QLatin1Char('/') + name;
  if (!w.grab().save(path)) std::fprintf(stderr, "cannot write %s\n", qPrintable(path));
}

void Reveal(qb::ui::RevealScreen& d, int steps) {
  for (int i = 0; i < steps; ++i) d.Step();
}

}  // namespace

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  if (argc < 2) {
    std::fprintf(stderr, "usage: screens_gallery OUTPUT_FOLDER\n");
    return 2;
  }
  folder = QString::fromLocal8Bit(argv[1]);
  QDir().mkpath(folder);

  qb::test::RecorderHost host;
  qb::Game g(host);
  qb::InitTables(g);
  g.LevelName = "Climb Then Float";
  g.LevelNumber = 20;
  g.CurrentSkill = 1;
  g.CharactersTotal = 40;
  g.CharactersNeeded = 25;
  g.SavedCount = 31;
  for (int t = 0; t < 4; ++t) g.HighestLevel(t) = static_cast<int16_t>(4 + 5 * t);

  {
    qb::ui::RevealScreen d(qb::Screen::Title, qb::TitleTexts(g));
    Reveal(d, 6);
    Save(d, "title-card.png");
  }
  {
    qb::ui::RevealScreen d(qb::Screen::WinLevel, qb::WinLevelTexts(g));
    Reveal(d, 8);
    Save(d, "level-won.png");
  }
  {
    qb::ui::RevealScreen d(qb::Screen::WinLevel, qb::WinLevelTexts(g));
    Reveal(d, 6);
    Save(d, "level-won-revealing.png");
  }
  {
    g.SavedCount = 17;
    qb::ui::RevealScreen d(qb::Screen::LooseLevel, qb::LooseLevelTexts(g));
    Reveal(d, 4);
    Save(d, "level-lost-revealing.png");
  }
  {
    qb::ui::WonGameScreen d(qb::WonGameTexts());
    Save(d, "won-game.png");
  }
  {
    qb::ui::ChooseLevel d(g);
    Save(d, "chooser.png");
  }
  for (int page = 0; page < 3; ++page) {
    qb::ui::Instructions d;
    d.Option1(page)->click();
    Save(d, QStringLiteral("instructions-%1.png").arg(page));
  }
  {
    qb::ui::AboutBox d;
    Save(d, "about.png");
  }
  {
    qb::ui::Splash s(nullptr);
    Save(s, "splash.png");
  }
  {
    const int size = 48;
    QImage strip(QSize(8 * (size + 8) + 8, size + 16) * 2, QImage::Format_ARGB32);
    strip.setDevicePixelRatio(2);
    strip.fill(Qt::white);
    QPainter p(&strip);
    for (int t = 0; t < 8; ++t)
      p.drawPixmap(8 + t * (size + 8), 8,
                   qb::ui::RenderArt(qb::ui::ToolArtName(t), {size, size}, 2));
    p.end();
    strip.save(folder + QStringLiteral("/tool-icons.png"));
    qb::ui::RenderArt(QStringLiteral("app-icon"), {128, 128}, 1).save(folder + "/app-icon.png");
  }
  return 0;
}
