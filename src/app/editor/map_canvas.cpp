// The map of the level being edited and the drawing tools' mouse handling.
#include "app/editor/map_canvas.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QWheelEvent>
#include <algorithm>

#include "app/editor/kind_colours.h"
#include "app/editor/level_document.h"
#include "core/picture.h"
#include "sim/teleport.h"

namespace qb::editor {
namespace {

const QColor kMarkerColours[] = {QColor(0, 140, 0), QColor(200, 0, 0), QColor(0, 90, 220)};

QColor MarkerColour(SlotKind kind) {
  return kMarkerColours[static_cast<int>(kind)];
}

}  // namespace

MapCanvas::MapCanvas(LevelDocument& doc, QWidget* parent) : QWidget(parent), doc_(doc) {
  setMouseTracking(true);
  setAttribute(Qt::WA_OpaquePaintEvent);
  connect(&doc_, &LevelDocument::changed, this, [this] {
    FitSize();
    update();
  });
  connect(&doc_, &LevelDocument::replaced, this, [this] {
    selection_.reset();
    highlight_.reset();
  });
  FitSize();
}

void MapCanvas::SetTool(DrawTool tool) {
  tool_ = tool;
  setCursor(tool == DrawTool::View || tool == DrawTool::Slots ? Qt::OpenHandCursor
                                                              : Qt::CrossCursor);
}

void MapCanvas::SetKind(int kind) {
  kind_ = kind;
}

void MapCanvas::SetZoom(int pixels) {
  zoom_ = std::clamp(pixels, 1, 64);
  FitSize();
  update();
}

void MapCanvas::FitSize() {
  const LevelData& d = doc_.Data();
  setFixedSize(std::max(1, d.GridWidth * zoom_), std::max(1, d.GridHeight * zoom_));
}

Square MapCanvas::SquareAt(QPoint pixel) const {
  const auto floorDiv = [this](int v) { return v >= 0 ? v / zoom_ : (v - zoom_ + 1) / zoom_; };
  return {floorDiv(pixel.x()), floorDiv(pixel.y())};
}

QPoint MapCanvas::CentreOf(Square s) const {
  return {s.x * zoom_ + zoom_ / 2, s.y * zoom_ + zoom_ / 2};
}

QRect MapCanvas::SquareRect(Square s) const {
  return {s.x * zoom_, s.y * zoom_, zoom_, zoom_};
}

QRect MapCanvas::AreaRect(const Area& a) const {
  return {a.left * zoom_, a.top * zoom_, a.Width() * zoom_, a.Height() * zoom_};
}

void MapCanvas::SetSelection(std::optional<Area> area) {
  // Only squares of the level can be selected, so a moved selection keeps its squares in step.
  selection_ = area ? PartInside(doc_.Data(), *area) : std::nullopt;
  update();
}

void MapCanvas::SetMarks(std::vector<Square> marks) {
  marks_ = std::move(marks);
  update();
}

void MapCanvas::Highlight(std::optional<Square> square) {
  highlight_ = square;
  update();
}

const LevelData& MapCanvas::Shown() const {
  return preview_ ? *preview_ : doc_.Data();
}

void MapCanvas::paintEvent(QPaintEvent* event) {
  QPainter p(this);
  const LevelData& d = Shown();
  const QRect dirty = event->rect();
  const Square from = SquareAt(dirty.topLeft()), to = SquareAt(dirty.bottomRight());
  for (int y = std::max(from.y, 0); y <= std::min(to.y, d.GridHeight - 1); ++y)
    for (int x = std::max(from.x, 0); x <= std::min(to.x, d.GridWidth - 1); ++x) {
      const int k = d.Square(x, y);
      p.fillRect(SquareRect({x, y}), KindColour(k >= 0 && k < 18 ? k : 0));
    }
  if (zoom_ >= 8) {  // a faint grid once squares are big enough to aim at
    p.setPen(QColor(0, 0, 0, 28));
    for (int x = 1; x < d.GridWidth; ++x) p.drawLine(x * zoom_, 0, x * zoom_, height());
    for (int y = 1; y < d.GridHeight; ++y) p.drawLine(0, y * zoom_, width(), y * zoom_);
  }
  PaintMarkers(p, d);

  // The start view: the 40 by 40 squares the player sees first.
  const QRect view(d.StartViewX * zoom_, d.StartViewY * zoom_, kViewSize * zoom_,
                   kViewSize * zoom_);
  p.setBrush(Qt::NoBrush);
  p.setPen(QPen(Qt::black, 3));
  p.drawRect(view.adjusted(1, 1, -1, -1));
  p.setPen(QPen(QColor(255, 200, 0), 1, Qt::DashLine));
  p.drawRect(view.adjusted(1, 1, -1, -1));

  // A wash rather than a colour of its own, so that the marked square's kind still shows.
  for (const Square s : marks_) p.fillRect(SquareRect(s), QColor(255, 120, 0, 110));
  if (highlight_) {
    p.setPen(QPen(Qt::red, 3));
    p.drawRect(SquareRect(*highlight_).adjusted(-2, -2, 2, 2));
  }
  if (selection_) {
    p.setPen(QPen(Qt::white, 1));
    p.drawRect(AreaRect(*selection_).adjusted(0, 0, -1, -1));
    p.setPen(QPen(Qt::black, 1, Qt::DashLine));
    p.drawRect(AreaRect(*selection_).adjusted(0, 0, -1, -1));
  }
}

void MapCanvas::PaintMarkers(QPainter& p, const LevelData& d) const {
  p.setRenderHint(QPainter::Antialiasing);
  // A teleport's partner is the other of its pair (0-1, 2-3, 4-5): join the two.
  p.setPen(QPen(MarkerColour(SlotKind::Teleport), std::max(1, zoom_ / 6), Qt::DotLine));
  for (int j = 0; j < kSlotCount; j += 2) {
    const SlotRef a{SlotKind::Teleport, j}, b{SlotKind::Teleport, TeleportPartner(j)};
    if (SlotActive(d, a) && SlotActive(d, b))
      p.drawLine(CentreOf(SlotSquare(d, a)), CentreOf(SlotSquare(d, b)));
  }
  QFont font = p.font();
  font.setPixelSize(std::max(6, zoom_ * 2 / 3));
  font.setBold(true);
  p.setFont(font);
  for (SlotKind kind : {SlotKind::Entrance, SlotKind::Trap, SlotKind::Teleport})
    for (int j = 0; j < kSlotCount; ++j) {
      const SlotRef ref{kind, j};
      if (!SlotActive(d, ref)) continue;
      const QRect r =
          SquareRect(SlotSquare(d, ref)).adjusted(-zoom_ / 3, -zoom_ / 3, zoom_ / 3, zoom_ / 3);
      p.setPen(QPen(MarkerColour(kind), 2));
      p.setBrush(QColor(255, 255, 255, 200));
      p.drawEllipse(r);
      if (zoom_ >= 8)
        p.drawText(r, Qt::AlignCenter, QString(SlotLetter(kind)) + QString::number(j));
    }
  p.setRenderHint(QPainter::Antialiasing, false);
}

void MapCanvas::mousePressEvent(QMouseEvent* event) {
  // The right button draws empty squares with the drawing tools: an eraser at hand.
  const bool drawing = tool_ <= DrawTool::Fill;
  if (event->button() != Qt::LeftButton && !(drawing && event->button() == Qt::RightButton)) return;
  button_ = event->button();
  drawKind_ = static_cast<int16_t>(button_ == Qt::RightButton ? 0 : kind_);
  const Square s = SquareAt(event->position().toPoint());
  const LevelData& d = doc_.Data();
  anchor_ = last_ = s;
  base_ = d;
  preview_ = d;
  switch (tool_) {
    case DrawTool::Pencil:
      dragName_ = "Draw";
      Paint(*preview_, {s}, drawKind_);
      break;
    case DrawTool::Line:
      dragName_ = "Line";
      break;
    case DrawTool::Rectangle:
    case DrawTool::FilledRectangle:
      dragName_ = "Rectangle";
      break;
    case DrawTool::Fill:
      Paint(*preview_, FloodSquares(d, s), drawKind_);
      doc_.Edit("Fill", *preview_);
      base_.reset();
      preview_.reset();
      return;
    case DrawTool::Pick:
      base_.reset();
      preview_.reset();
      if (s.x >= 0 && s.y >= 0 && s.x < d.GridWidth && s.y < d.GridHeight) {
        SetKind(d.Square(s.x, s.y));
        Q_EMIT kindPicked(kind_);
      }
      return;
    case DrawTool::Select:
      dragName_ = "Move Selection";
      if (selection_ && selection_->Contains(s)) {
        movingFrom_ = *selection_;
        moving_ = CopyArea(d, *selection_);
      } else {
        moving_.reset();
        SetSelection(Area::Spanning(s, s));
      }
      break;
    case DrawTool::Slots:
      dragName_ = "Place Slot";
      draggedSlot_ = SlotOn(d, s).value_or(slot_);
      if (SlotOn(d, s)) dragName_ = "Move Slot";
      break;
    case DrawTool::View:
      dragName_ = "Move Start View";
      break;
  }
  Drag(s);
}

void MapCanvas::mouseMoveEvent(QMouseEvent* event) {
  const Square s = SquareAt(event->position().toPoint());
  Q_EMIT hovered(s.x, s.y);
  if (base_ && (event->buttons() & button_)) Drag(s);
}

void MapCanvas::Drag(Square s) {
  const int16_t kind = drawKind_;
  switch (tool_) {
    case DrawTool::Pencil:  // a fast stroke skips squares: join them
      Paint(*preview_, LineSquares(last_, s), kind);
      break;
    case DrawTool::Line:
      *preview_ = *base_;
      Paint(*preview_, LineSquares(anchor_, s), kind);
      break;
    case DrawTool::Rectangle:
    case DrawTool::FilledRectangle:
      *preview_ = *base_;
      Paint(*preview_,
            RectangleSquares(Area::Spanning(anchor_, s), tool_ == DrawTool::FilledRectangle), kind);
      break;
    case DrawTool::Select:
      if (moving_) {
        // The squares leave an empty hole and land where the mouse took them.
        *preview_ = *base_;
        Paint(*preview_, RectangleSquares(movingFrom_, true), Empty);
        const Square to{movingFrom_.left + s.x - anchor_.x, movingFrom_.top + s.y - anchor_.y};
        PasteClip(*preview_, *moving_, to);
        SetSelection(Area{to.x, to.y, to.x + moving_->width - 1, to.y + moving_->height - 1});
      } else {
        SetSelection(Area::Spanning(anchor_, s));
      }
      break;
    case DrawTool::Slots:  // a slot stays on the map however far the mouse goes
      PlaceSlot(*preview_, *draggedSlot_,
                {std::clamp(s.x, 0, base_->GridWidth - 1),
                 std::clamp<int>(s.y, 0, base_->GridHeight - 1)});
      break;
    case DrawTool::View: {
      const int maxX = std::max(base_->GridWidth - kViewSize, 0);
      const int maxY = std::max<int>(base_->GridHeight - kViewSize, 0);
      preview_->StartViewX = std::clamp(base_->StartViewX + s.x - anchor_.x, 0, maxX);
      preview_->StartViewY =
          static_cast<int16_t>(std::clamp(base_->StartViewY + s.y - anchor_.y, 0, maxY));
      break;
    }
    default:
      break;
  }
  last_ = s;
  update();
}

void MapCanvas::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != button_ || !base_) return;
  const LevelData after = *preview_;
  base_.reset();
  preview_.reset();
  moving_.reset();
  draggedSlot_.reset();
  doc_.Edit(dragName_, after);  // nothing is pushed when the drag changed nothing
  update();
}

void MapCanvas::wheelEvent(QWheelEvent* event) {
  if (!(event->modifiers() & Qt::ControlModifier)) {
    event->ignore();  // plain wheel scrolls the map
    return;
  }
  const int steps = event->angleDelta().y() / 120;
  if (steps != 0) Q_EMIT zoomWheel(steps, event->position().toPoint());
  event->accept();
}

}  // namespace qb::editor
