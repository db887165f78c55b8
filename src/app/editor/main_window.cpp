// The editor's window: its panels, its menus and the edits made from the menus.
#include "app/editor/main_window.h"

#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QDockWidget>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QMenuBar>
#include <QScrollArea>
#include <QScrollBar>
#include <QStatusBar>
#include <QToolBar>
#include <algorithm>

#include "app/editor/map_canvas.h"
#include "app/editor/palette_panel.h"
#include "app/editor/problems_panel.h"
#include "app/editor/properties_panel.h"
#include "app/editor/slots_panel.h"
#include "leveltext/level_legend.h"

namespace qb::editor {

MainWindow::MainWindow(QWidget* parent) : QMainWindow(parent) {
  askToSave = [this] {
    return QMessageBox::question(
        this, "Quorbit 2 Level Editor", "The level has changes that are not saved. Save them?",
        QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Save);
  };
  report = [this](const QString& text) {
    QMessageBox::warning(this, "Quorbit 2 Level Editor", text);
  };
  canvas_ = new MapCanvas(doc_);
  scroll_ = new QScrollArea(this);
  scroll_->setWidget(canvas_);
  scroll_->setAlignment(Qt::AlignCenter);
  scroll_->setBackgroundRole(QPalette::Dark);
  setCentralWidget(scroll_);
  hover_ = new QLabel(this);
  statusBar()->addWidget(hover_, 1);

  BuildDocks();
  BuildMenus();
  connect(canvas_, &MapCanvas::hovered, this, [this](int x, int y) {
    const LevelData& d = doc_.Data();
    if (x < 0 || y < 0 || x >= d.GridWidth || y >= d.GridHeight) {
      hover_->setText(QString("(%1, %2) outside the level").arg(x).arg(y));
      return;
    }
    const std::string_view name = leveltext::KindName(d.Square(x, y));
    hover_->setText(QString("%1 at (%2, %3)")
                        .arg(QString::fromLatin1(name.data(), static_cast<qsizetype>(name.size())))
                        .arg(x)
                        .arg(y));
  });
  connect(canvas_, &MapCanvas::zoomWheel, this, &MainWindow::ZoomBy);
  connect(&doc_.Undo(), &QUndoStack::cleanChanged, this, &MainWindow::ShowTitle);
  connect(&doc_, &LevelDocument::pathChanged, this, &MainWindow::ShowTitle);
  ShowTitle();
  resize(1200, 800);
}

QAction* MainWindow::AddAction(QMenu* menu, const QString& name, const QString& text,
                               const QKeySequence& key, std::function<void()> run) {
  QAction* action = menu->addAction(text);
  action->setObjectName(name);
  action->setShortcut(key);
  connect(action, &QAction::triggered, this, [run = std::move(run)] { run(); });
  return action;
}

QAction* MainWindow::Action(const QString& name) const {
  return findChild<QAction*>(name);
}

void MainWindow::BuildDocks() {
  auto dock = [this](const QString& title, QWidget* widget, Qt::DockWidgetArea area) {
    auto* d = new QDockWidget(title, this);
    d->setObjectName(title);
    d->setWidget(widget);
    addDockWidget(area, d);
    return d;
  };
  palette_ = new PalettePanel(this);
  dock("Squares", palette_, Qt::LeftDockWidgetArea);
  palette_->ShowKind(canvas_->Kind());
  connect(palette_, &PalettePanel::kindChosen, canvas_, &MapCanvas::SetKind);
  connect(canvas_, &MapCanvas::kindPicked, palette_, &PalettePanel::ShowKind);

  properties_ = new PropertiesPanel(doc_, this);
  auto* scroller = new QScrollArea(this);
  scroller->setWidget(properties_);
  scroller->setWidgetResizable(true);
  dock("Properties", scroller, Qt::RightDockWidgetArea);

  slots_ = new SlotsPanel(doc_, this);
  dock("Entrances, Traps and Teleports", slots_, Qt::RightDockWidgetArea);
  connect(slots_, &SlotsPanel::slotChosen, this, [this](SlotRef slot) {
    canvas_->SetSlot(slot);
    UseTool(DrawTool::Slots);
  });

  problems_ = new ProblemsPanel(doc_, this);
  QDockWidget* problems = dock("Problems", problems_, Qt::BottomDockWidgetArea);
  connect(problems_, &ProblemsPanel::showSquare, this, &MainWindow::ShowSquare);
  // The map keeps most of the room; the lists need only a few lines.
  resizeDocks({problems}, {120}, Qt::Vertical);
  resizeDocks({findChild<QDockWidget*>("Properties")}, {320}, Qt::Horizontal);
}

void MainWindow::BuildMenus() {
  QMenu* file = menuBar()->addMenu("&File");
  AddAction(file, "new", "&New", QKeySequence::New, [this] {
    if (MaybeKeepChanges()) doc_.NewLevel();
  });
  AddAction(file, "open", "&Open...", QKeySequence::Open, [this] {
    if (!MaybeKeepChanges()) return;
    const QString path = QFileDialog::getOpenFileName(
        this, "Open Level", QFileInfo(doc_.Path()).path(), "Levels (*.lvl *.txt);;All files (*)");
    if (!path.isEmpty()) OpenFile(path);
  });
  AddAction(file, "save", "&Save", QKeySequence::Save, [this] { SaveTo(doc_.Path()); });
  AddAction(file, "saveAs", "Save &As...", QKeySequence::SaveAs, [this] { SaveTo({}); });
  file->addSeparator();
  AddAction(file, "quit", "&Quit", QKeySequence::Quit, [this] { close(); });

  QMenu* edit = menuBar()->addMenu("&Edit");
  QAction* undo = doc_.Undo().createUndoAction(this, "&Undo");
  undo->setShortcut(QKeySequence::Undo);
  undo->setObjectName("undo");
  QAction* redo = doc_.Undo().createRedoAction(this, "&Redo");
  redo->setShortcut(QKeySequence::Redo);
  redo->setObjectName("redo");
  edit->addActions({undo, redo});
  edit->addSeparator();
  AddAction(edit, "cut", "Cu&t", QKeySequence::Cut, [this] {
    Copy();
    DeleteSelection("Cut");
  });
  AddAction(edit, "copy", "&Copy", QKeySequence::Copy, [this] { Copy(); });
  AddAction(edit, "paste", "&Paste", QKeySequence::Paste, [this] { Paste(); });
  AddAction(edit, "delete", "&Delete", QKeySequence::Delete, [this] { DeleteSelection("Delete"); });
  AddAction(edit, "flipH", "Flip &Horizontally", Qt::Key_H, [this] { FlipSelection(true); });
  AddAction(edit, "flipV", "Flip &Vertically", Qt::SHIFT | Qt::Key_H,
            [this] { FlipSelection(false); });
  AddAction(edit, "selectAll", "Select &All", QKeySequence::SelectAll, [this] {
    const LevelData& d = doc_.Data();
    canvas_->SetSelection(Area{0, 0, d.GridWidth - 1, d.GridHeight - 1});
  });
  AddAction(edit, "deselect", "Select &None", Qt::Key_Escape,
            [this] { canvas_->SetSelection(std::nullopt); });

  QMenu* view = menuBar()->addMenu("&View");
  AddAction(view, "zoomIn", "Zoom &In", QKeySequence::ZoomIn, [this] { ZoomBy(1, {}); });
  AddAction(view, "zoomOut", "Zoom &Out", QKeySequence::ZoomOut, [this] { ZoomBy(-1, {}); });
  AddAction(view, "fit", "&Fit to Window", Qt::CTRL | Qt::Key_0, [this] { FitToWindow(); });
  view->addSeparator();
  for (QDockWidget* d : findChildren<QDockWidget*>()) view->addAction(d->toggleViewAction());

  BuildToolMenu();
  BuildLevelMenu();
}

void MainWindow::BuildToolMenu() {
  QMenu* menu = menuBar()->addMenu("&Tools");
  QToolBar* bar = addToolBar("Tools");
  bar->setObjectName("Tools");
  tools_ = new QActionGroup(this);
  const std::pair<DrawTool, const char*> tools[] = {
      {DrawTool::Pencil, "&Pencil"},       {DrawTool::Line, "&Line"},
      {DrawTool::Rectangle, "&Rectangle"}, {DrawTool::FilledRectangle, "F&illed Rectangle"},
      {DrawTool::Fill, "&Flood Fill"},     {DrawTool::Pick, "Pic&k Kind"},
      {DrawTool::Select, "&Select"},       {DrawTool::Slots, "Place &Entrances, Traps, Teleports"},
      {DrawTool::View, "Move Start &View"}};
  const QKeySequence keys[] = {Qt::Key_P, Qt::Key_L, Qt::Key_R, Qt::SHIFT | Qt::Key_R,
                               Qt::Key_F, Qt::Key_K, Qt::Key_S, Qt::Key_E,
                               Qt::Key_V};
  int i = 0;
  for (const auto& [tool, text] : tools) {
    QAction* a = AddAction(menu, QString("tool%1").arg(i), text, keys[i],
                           [this, tool = tool] { canvas_->SetTool(tool); });
    a->setCheckable(true);
    a->setChecked(tool == canvas_->Tool());
    tools_->addAction(a);
    bar->addAction(a);
    ++i;
  }
  QMenu* kinds = menuBar()->addMenu("S&quares");
  for (int k = 0; k < 18; ++k) {
    const std::string_view name = leveltext::KindName(k);
    AddAction(kinds, QString("kind%1").arg(k),
              QString::fromLatin1(name.data(), static_cast<qsizetype>(name.size())),
              KindShortcut(k), [this, k] {
                canvas_->SetKind(k);
                palette_->ShowKind(k);
              });
  }
}

void MainWindow::UseTool(DrawTool tool) {
  tools_->actions().at(static_cast<int>(tool))->setChecked(true);
  canvas_->SetTool(tool);
}

void MainWindow::ShowTitle() {
  const QString name = doc_.Path().isEmpty() ? "Untitled" : QFileInfo(doc_.Path()).fileName();
  setWindowTitle(name + "[*] - Quorbit 2 Level Editor");
  setWindowModified(doc_.Modified());
}

void MainWindow::ZoomBy(int steps, QPoint pixel) {
  const Square under = canvas_->SquareAt(pixel);
  int zoom = canvas_->Zoom();
  for (int i = 0; i < std::abs(steps); ++i)
    zoom = steps > 0 ? std::max(zoom + 1, zoom * 5 / 4) : std::min(zoom - 1, zoom * 4 / 5);
  canvas_->SetZoom(zoom);
  if (!pixel.isNull()) ScrollTo(under.x, under.y);
}

void MainWindow::FitToWindow() {
  const LevelData& d = doc_.Data();
  const QSize room = scroll_->maximumViewportSize();
  canvas_->SetZoom(std::min(room.width() / std::max<int>(d.GridWidth, 1),
                            room.height() / std::max<int>(d.GridHeight, 1)));
}

void MainWindow::ScrollTo(int x, int y) {
  const QPoint centre = canvas_->CentreOf({x, y});
  scroll_->ensureVisible(centre.x(), centre.y(), scroll_->viewport()->width() / 2,
                         scroll_->viewport()->height() / 2);
}

void MainWindow::ShowSquare(int x, int y) {
  ScrollTo(x, y);
  canvas_->Highlight(Square{x, y});
}

void MainWindow::Copy() {
  if (canvas_->Selection()) clip_ = CopyArea(doc_.Data(), *canvas_->Selection());
}

void MainWindow::Paste() {
  if (clip_.Empty()) return;
  // At the selection's corner, else at the view's; the pasted squares stay selected to move.
  const LevelData& now = doc_.Data();
  const Square at = canvas_->Selection()
                        ? Square{canvas_->Selection()->left, canvas_->Selection()->top}
                        : Square{now.StartViewX, now.StartViewY};
  LevelData d = now;
  PasteClip(d, clip_, at);
  doc_.Edit("Paste", d);
  canvas_->SetSelection(Area{at.x, at.y, at.x + clip_.width - 1, at.y + clip_.height - 1});
}

void MainWindow::DeleteSelection(const QString& what) {
  if (!canvas_->Selection()) return;
  LevelData d = doc_.Data();
  Paint(d, RectangleSquares(*canvas_->Selection(), true), 0);
  doc_.Edit(what, d);
}

void MainWindow::FlipSelection(bool leftRight) {
  if (!canvas_->Selection()) return;
  LevelData d = doc_.Data();
  const Clip clip = CopyArea(d, *canvas_->Selection());
  PasteClip(d, leftRight ? FlippedLeftRight(clip) : FlippedUpDown(clip),
            {std::max(canvas_->Selection()->left, 0), std::max(canvas_->Selection()->top, 0)});
  doc_.Edit(leftRight ? "Flip Horizontally" : "Flip Vertically", d);
}

void MainWindow::closeEvent(QCloseEvent* event) {
  if (MaybeKeepChanges())
    event->accept();
  else
    event->ignore();
}

}  // namespace qb::editor
