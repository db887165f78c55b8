// The six entrance, trap and teleport slots: a check switches one on or off, a click chooses the
// one the map's slot tool places.
#pragma once

#include <QTableWidget>

#include "app/editor/slot_places.h"

namespace qb::editor {

class LevelDocument;

class SlotsPanel : public QTableWidget {
  Q_OBJECT
 public:
  explicit SlotsPanel(LevelDocument& doc, QWidget* parent = nullptr);

 Q_SIGNALS:
  void slotChosen(SlotRef slot);

 private:
  void Show();
  void Toggle(QTableWidgetItem* item);

  LevelDocument& doc_;
};

}  // namespace qb::editor
