// The square kinds' colours, from the game's own colour table.
#include "app/editor/kind_colours.h"

#include <array>

#include "core/game.h"
#include "core/silent_host.h"
#include "core/squares.h"
#include "ui/desktop/qt_colour.h"

namespace qb::editor {
namespace {

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
