// The map of the level being edited: every square in its game colour, the slots as numbered
// markers, the start view's frame, the selection; the drawing tools work on it with the mouse.
#pragma once

#include <QWidget>
#include <optional>
#include <vector>

#include "app/editor/grid_edits.h"
#include "app/editor/slot_places.h"
#include "core/level_file.h"

class QPainter;

namespace qb::editor {

class LevelDocument;

enum class DrawTool { Pencil, Line, Rectangle, FilledRectangle, Fill, Pick, Select, Slots, View };

class MapCanvas : public QWidget {
  Q_OBJECT
 public:
  explicit MapCanvas(LevelDocument& doc, QWidget* parent = nullptr);

  DrawTool Tool() const { return tool_; }
  void SetTool(DrawTool tool);
  int Kind() const { return kind_; }
  void SetKind(int kind);
  SlotRef Slot() const { return slot_; }
  void SetSlot(SlotRef slot) { slot_ = slot; }

  int Zoom() const { return zoom_; }  // pixels a square
  void SetZoom(int pixels);
  Square SquareAt(QPoint pixel) const;
  QPoint CentreOf(Square s) const;

  const std::optional<Area>& Selection() const { return selection_; }
  void SetSelection(std::optional<Area> area);
  // Outlined squares: the analysis' marks, and one square a problem names.
  void SetMarks(std::vector<Square> marks);
  const std::vector<Square>& Marks() const { return marks_; }
  void Highlight(std::optional<Square> square);
  const std::optional<Square>& Highlighted() const { return highlight_; }

 Q_SIGNALS:
  void hovered(int x, int y);  // the square under the mouse, also outside the level
  void kindPicked(int kind);
  void zoomWheel(int steps, QPoint pixel);  // Ctrl+wheel, in notches

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  const LevelData& Shown() const;
  void Drag(Square s);
  void PaintMarkers(QPainter& p, const LevelData& d) const;
  QRect SquareRect(Square s) const;
  QRect AreaRect(const Area& a) const;
  void FitSize();

  LevelDocument& doc_;
  DrawTool tool_ = DrawTool::Pencil;
  int kind_ = 2;
  SlotRef slot_;
  int zoom_ = 12;

  // A drag in progress: the level as it stood at the press, and what the drag made of it.
  std::optional<LevelData> base_, preview_;
  QString dragName_;
  Qt::MouseButton button_ = Qt::LeftButton;
  int16_t drawKind_ = 0;  // the kind the drag draws: the palette's, or empty for the right button
  Square anchor_, last_;
  std::optional<SlotRef> draggedSlot_;
  std::optional<Clip> moving_;  // the selection's squares while they are dragged
  Area movingFrom_;

  std::optional<Area> selection_;
  std::vector<Square> marks_;
  std::optional<Square> highlight_;
};

}  // namespace qb::editor
