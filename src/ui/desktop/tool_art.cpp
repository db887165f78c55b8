// The pictures and names of the eight tools for the tool bar.
#include "ui/desktop/tool_art.h"

#include <QPainter>

#include "ui/screens/screens.h"

namespace qb::ui {

QString ToolName(int tool) {
  static const char* const kNames[8] = {"Climb", "Block", "Build", "Change",
                                        "Jump",  "Slow",  "Bomb",  "Laser"};
  return (tool >= 0 && tool < 8) ? QString(kNames[tool]) : QString();
}

QPixmap ToolPixmap(int tool, int sizePx, double devicePixelRatio) {
  QPixmap art = ToolIcon(tool, static_cast<int>(sizePx * devicePixelRatio));
  if (!art.isNull()) {
    art.setDevicePixelRatio(devicePixelRatio);
    return art;
  }
  // When the picture cannot be drawn: the tool's initial on a plain tile.
  const int side = static_cast<int>(sizePx * devicePixelRatio);
  QPixmap tile(side, side);
  tile.fill(Qt::transparent);
  QPainter p(&tile);
  p.setRenderHint(QPainter::Antialiasing);
  p.setBrush(QColor(0x53, 0x5C, 0xA2));
  p.setPen(Qt::NoPen);
  p.drawRoundedRect(QRectF(1, 1, side - 2, side - 2), side / 6.0, side / 6.0);
  p.setPen(Qt::white);
  QFont f = p.font();
  f.setPixelSize(side / 2);
  f.setBold(true);
  p.setFont(f);
  p.drawText(tile.rect(), Qt::AlignCenter, ToolName(tool).left(2));
  p.end();
  tile.setDevicePixelRatio(devicePixelRatio);
  return tile;
}

}  // namespace qb::ui
