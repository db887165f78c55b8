// The square kinds' colours, from the game's own colour table.
#include "editor/kind_colours.h"

#include <array>

#include "core/game.h"
#include "core/squares.h"
#include "ui/desktop/qt_colour.h"

namespace qb::editor {
namespace {

// Only to build a game whose tables the rules fill; nothing here is ever played.
class SilentHost : public Host {
 public:
  void PlaySound(std::string_view, int) override {}
  void ShowScreen(Screen, const ScreenTexts&) override {}
  void ShowMessage(const std::string&, const std::string&) override {}
  void SetMusicFileName(const std::string&) override {}
  void SendMusicCommand(MusicCommand) override {}
  int MusicMode() override { return 0; }
  FileRead ReadFile(const std::string&) override { return {}; }
};

std::array<QColor, kKindCount> GameColours() {
  SilentHost host;
  auto game = std::make_unique<Game>(host);
  InitColours(*game);
  std::array<QColor, kKindCount> out;
  for (int k = 0; k < kKindCount; ++k)
    out[static_cast<std::size_t>(k)] = QColor(ui::ToRgb(game->SquareColour(k)));
  return out;
}

}  // namespace

QColor KindColour(int kind) {
  static const std::array<QColor, kKindCount> colours = GameColours();
  return colours.at(static_cast<std::size_t>(kind));
}

}  // namespace qb::editor
