// The editor's window: the map in the middle, the palette, the properties, the slots and the
// problems around it; the menus for files, editing, the view, the tools and the level.
#pragma once

#include <QMainWindow>
#include <QMessageBox>
#include <functional>

#include "app/editor/grid_edits.h"
#include "app/editor/level_document.h"

class QActionGroup;
class QDockWidget;
class QLabel;
class QScrollArea;

namespace qb::editor {

class MapCanvas;
class PalettePanel;
class ProblemsPanel;
class PropertiesPanel;
class SlotsPanel;
enum class DrawTool;

class MainWindow : public QMainWindow {
  Q_OBJECT
 public:
  explicit MainWindow(QWidget* parent = nullptr);

  // The prompt of the dialogs, replaceable so that a test can answer them.
  std::function<QMessageBox::StandardButton()> askToSave;
  std::function<void(const QString&)> report;

  // False when the file was refused (its message reported) or unsaved changes were kept.
  bool OpenFile(const QString& path);
  bool SaveTo(const QString& path);
  // Unsaved changes are saved or dropped as the user answers; false when he cancels.
  bool MaybeKeepChanges();

  LevelDocument& Document() { return doc_; }
  MapCanvas& Canvas() { return *canvas_; }
  PropertiesPanel& Properties() { return *properties_; }
  SlotsPanel& Slots() { return *slots_; }
  ProblemsPanel& Problems() { return *problems_; }
  QAction* Action(const QString& name) const;  // by its object name, for tests
  void UseTool(DrawTool tool);
  void FitToWindow();
  // Scrolls the square into the middle of the view; ShowSquare outlines it as well.
  void ScrollTo(int x, int y);
  void ShowSquare(int x, int y);

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void BuildMenus();
  void BuildToolMenu();
  void BuildDocks();
  void BuildLevelMenu();
  void ShowTitle();
  void ZoomBy(int steps, QPoint pixel);
  void Copy();
  void Paste();
  void DeleteSelection(const QString& what);
  void FlipSelection(bool leftRight);
  QAction* AddAction(QMenu* menu, const QString& name, const QString& text, const QKeySequence& key,
                     std::function<void()> run);

  LevelDocument doc_;
  QScrollArea* scroll_;
  MapCanvas* canvas_;
  PalettePanel* palette_;
  PropertiesPanel* properties_;
  SlotsPanel* slots_;
  ProblemsPanel* problems_;
  QLabel* hover_;
  QActionGroup* tools_;
  Clip clip_;
};

}  // namespace qb::editor
