// The square kinds to draw with.
#include "app/editor/palette_panel.h"

#include <QPainter>
#include <QPixmap>
#include <QSignalBlocker>

#include "app/editor/kind_colours.h"
#include "core/squares.h"
#include "leveltext/level_legend.h"

namespace qb::editor {

QKeySequence KindShortcut(int kind) {
  if (kind < 10) return QKeySequence(Qt::Key_0 + kind);
  return QKeySequence(Qt::ALT | (Qt::Key_0 + kind - 10));
}

PalettePanel::PalettePanel(QWidget* parent) : QTreeWidget(parent) {
  setIconSize({20, 20});
  setRootIsDecorated(false);
  setHeaderLabels({"Square", "Key"});
  for (int k = 0; k < kKindCount; ++k) {
    QPixmap swatch(20, 20);
    swatch.fill(KindColour(k));
    QPainter(&swatch).drawRect(0, 0, 19, 19);
    const std::string_view name = leveltext::KindName(k);
    auto* item = new QTreeWidgetItem(
        this, {QString::fromLatin1(name.data(), static_cast<qsizetype>(name.size())),
               KindShortcut(k).toString(QKeySequence::NativeText)});
    item->setIcon(0, swatch);
  }
  resizeColumnToContents(0);
  connect(this, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
    if (item) Q_EMIT kindChosen(indexOfTopLevelItem(item));
  });
}

void PalettePanel::ShowKind(int kind) {
  const QSignalBlocker block(this);
  setCurrentItem(topLevelItem(kind));
}

}  // namespace qb::editor
