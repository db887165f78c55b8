// The live list of what the game would refuse and what the level check warns about; a click on
// a problem that names a square shows that square.
#pragma once

#include <QListWidget>
#include <QTimer>

namespace qb::editor {

class LevelDocument;

class ProblemsPanel : public QListWidget {
  Q_OBJECT
 public:
  explicit ProblemsPanel(LevelDocument& doc, QWidget* parent = nullptr);
  // Checks the level now rather than after the short pause that groups quick edits.
  void Refresh();

 Q_SIGNALS:
  void showSquare(int x, int y);

 private:
  LevelDocument& doc_;
  QTimer pending_;
};

}  // namespace qb::editor
