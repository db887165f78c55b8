// The six entrance, trap and teleport slots.
#include "app/editor/slots_panel.h"

#include <QHeaderView>
#include <QSignalBlocker>

#include "app/editor/level_document.h"

namespace qb::editor {

SlotsPanel::SlotsPanel(LevelDocument& doc, QWidget* parent)
    : QTableWidget(kSlotCount, 3, parent), doc_(doc) {
  setHorizontalHeaderLabels({"Entrance", "Trap", "Teleport"});
  verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setSelectionMode(QAbstractItemView::SingleSelection);
  for (int j = 0; j < kSlotCount; ++j)
    for (int c = 0; c < 3; ++c) {
      auto* item = new QTableWidgetItem;
      item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
      setItem(j, c, item);
    }
  setVerticalHeaderLabels({"0", "1", "2", "3", "4", "5"});
  connect(this, &QTableWidget::itemChanged, this, &SlotsPanel::Toggle);
  connect(this, &QTableWidget::currentCellChanged, this, [this](int row, int column) {
    if (row >= 0 && column >= 0) Q_EMIT slotChosen({static_cast<SlotKind>(column), row});
  });
  connect(&doc_, &LevelDocument::changed, this, &SlotsPanel::Show);
  Show();
}

void SlotsPanel::Show() {
  const QSignalBlocker block(this);
  const LevelData& d = doc_.Data();
  for (int j = 0; j < kSlotCount; ++j)
    for (int c = 0; c < 3; ++c) {
      const SlotRef ref{static_cast<SlotKind>(c), j};
      const Square s = SlotSquare(d, ref);
      item(j, c)->setCheckState(SlotActive(d, ref) ? Qt::Checked : Qt::Unchecked);
      item(j, c)->setText(
          QString("%1%2 (%3, %4)").arg(SlotLetter(ref.kind)).arg(j).arg(s.x).arg(s.y));
    }
}

void SlotsPanel::Toggle(QTableWidgetItem* item) {
  LevelData d = doc_.Data();
  const bool on = item->checkState() == Qt::Checked;
  SetSlotActive(d, {static_cast<SlotKind>(item->column()), item->row()}, on);
  doc_.Edit(on ? "Switch Slot On" : "Switch Slot Off", d);
}

}  // namespace qb::editor
