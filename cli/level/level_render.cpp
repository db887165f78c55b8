// render: a picture of a whole level, drawn with Qt Gui's QImage (no display needed).
#include <QImage>
#include <QPainter>
#include <QPen>
#include <ostream>

#include "level_analysis.h"

namespace qb::leveltext {
namespace {

QColor ToQColor(Colour c) {
  return QColor(static_cast<int>(c & 0xFF), static_cast<int>((c >> 8) & 0xFF),
                static_cast<int>((c >> 16) & 0xFF));
}

// A box one square wider than square (x, y) on every side, so that it shows at small scales.
void MarkSquare(QPainter& p, int x, int y, int scale, const QColor& colour) {
  p.setPen(QPen(colour, std::max(1, scale / 2)));
  p.setBrush(Qt::NoBrush);
  p.drawRect((x - 1) * scale, (y - 1) * scale, 3 * scale - 1, 3 * scale - 1);
}

}  // namespace

int Render(const std::vector<std::string>& given, std::ostream& out, std::ostream& err) {
  std::vector<std::string> args = given;
  std::string output, scaleText = "4";
  for (std::size_t i = 0; i + 1 < args.size(); ++i)
    if (args[i] == "-o" || args[i] == "--scale") {
      (args[i] == "-o" ? output : scaleText) = args[i + 1];
      args.erase(args.begin() + static_cast<std::ptrdiff_t>(i),
                 args.begin() + static_cast<std::ptrdiff_t>(i) + 2);
      --i;
    }
  const int scale =
      scaleText.find_first_not_of("0123456789") == std::string::npos && scaleText.size() <= 2
          ? std::stoi("0" + scaleText)
          : 0;
  if (args.size() != 1 || output.empty() || scale < 1 || scale > 32) {
    err << "usage: quorbit-level render LEVEL.lvl -o LEVEL.png [--scale N (1 to 32)]\n";
    return 2;
  }
  const auto level = LoadHeadless(args[0], err);
  if (!level) return 1;
  const Game& g = level->game;
  QImage image(g.GridWidth * scale, g.GridHeight * scale, QImage::Format_RGB32);
  QPainter p(&image);
  for (int x = 0; x < g.GridWidth; ++x)
    for (int y = 0; y < g.GridHeight; ++y)
      p.fillRect(x * scale, y * scale, scale, scale, ToQColor(g.SquareColour(g.Grid(x, y))));
  // Entrances dark green, traps red, teleports orange, each as a box around its square.
  for (int j = 0; j < kSlots; ++j) {
    if (g.EntranceActive(j)) MarkSquare(p, g.EntranceX(j), g.EntranceY(j), scale, {0, 128, 0});
    if (g.TrapActive(j)) MarkSquare(p, g.TrapX(j), g.TrapY(j), scale, {220, 0, 0});
    if (g.TeleportActive(j)) MarkSquare(p, g.TeleportX(j), g.TeleportY(j), scale, {255, 140, 0});
  }
  // The 40 by 40 view the level starts with, dotted.
  p.setPen(QPen(Qt::black, 1, Qt::DotLine));
  p.setBrush(Qt::NoBrush);
  p.drawRect(g.StartViewX * scale, g.StartViewY * scale, kViewSize * scale - 1,
             kViewSize * scale - 1);
  p.end();
  if (!image.save(QString::fromStdString(output), "PNG")) {
    err << output << ": error: cannot write the picture\n";
    return 1;
  }
  out << "rendered " << args[0] << " -> " << output << "\n";
  return 0;
}

}  // namespace qb::leveltext
