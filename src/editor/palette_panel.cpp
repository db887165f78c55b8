// The square kinds to draw with.
#include "editor/palette_panel.h"

#include <QPainter>
#include <QPixmap>
#include <QSignalBlocker>

#include "core/squares.h"
#include "editor/kind_colours.h"
#include "leveltext/level_legend.h"

namespace qb::editor {

QKeySequence KindShortcut(int kind) {
  if (kind < 10) return QKeySequence(Qt::Key_0 + kind);
  return QKeySequence(Qt::ALT | (Qt::Key_0 + kind - 10));
}

PalettePanel::PalettePanel(QWidget* parent) : QListWidget(parent) {
  setIconSize({20, 20});
  for (int k = 0; k < kKindCount; ++k) {
    QPixmap swatch(20, 20);
    swatch.fill(KindColour(k));
    QPainter(&swatch).drawRect(0, 0, 19, 19);
    const std::string_view name = leveltext::KindName(k);
    addItem(new QListWidgetItem(
        swatch, QString::fromLatin1(name.data(), static_cast<qsizetype>(name.size())) + "\t" +
                    KindShortcut(k).toString(QKeySequence::NativeText)));
  }
  connect(this, &QListWidget::currentRowChanged, this, &PalettePanel::kindChosen);
}

void PalettePanel::ShowKind(int kind) {
  const QSignalBlocker block(this);
  setCurrentRow(kind);
}

}  // namespace qb::editor
