// The square kinds to draw with: each with its game colour, its name and its shortcut.
#pragma once

#include <QKeySequence>
#include <QTreeWidget>

namespace qb::editor {

// The key that chooses a kind: 0 to 9 for the first ten, Alt with 0 to 7 for the rest.
QKeySequence KindShortcut(int kind);

class PalettePanel : public QTreeWidget {
  Q_OBJECT
 public:
  explicit PalettePanel(QWidget* parent = nullptr);
  void ShowKind(int kind);  // marks the kind in use without a signal

 Q_SIGNALS:
  void kindChosen(int kind);
};

}  // namespace qb::editor
