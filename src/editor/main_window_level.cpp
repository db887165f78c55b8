// The editor's window: the Level menu, which plays the level in a try window and analyses it.
#include <QDir>
#include <QDockWidget>
#include <QFile>
#include <QFileInfo>
#include <QMenuBar>

#include "editor/main_window.h"
#include "editor/map_canvas.h"

#if __has_include("editor/try_window.h") && __has_include("editor/analysis_panel.h")
#define QUORBIT_EDITOR_TRY_AND_ANALYSE 1
#include "editor/analysis_panel.h"
#include "editor/try_window.h"
#endif

namespace qb::editor {
#ifdef QUORBIT_EDITOR_TRY_AND_ANALYSE
namespace {

// Where a level's solution lives: beside it, with .replay for its extension.
QString SolutionPath(const QString& levelPath) {
  if (levelPath.isEmpty()) return {};
  const QFileInfo info(levelPath);
  return info.dir().filePath(info.completeBaseName() + ".replay");
}

}  // namespace
#endif

void MainWindow::BuildLevelMenu() {
  QMenu* level = menuBar()->addMenu("&Level");
#ifdef QUORBIT_EDITOR_TRY_AND_ANALYSE
  AddAction(level, "tryIt", "&Try It", Qt::Key_F5, [this] {
    TryWindow window(doc_.Data(), SolutionPath(doc_.Path()), this);
    window.exec();
  });
  auto* panel = new AnalysisPanel(this);
  auto* dock = new QDockWidget("Analysis", this);
  dock->setObjectName("Analysis");
  dock->setWidget(panel);
  addDockWidget(Qt::BottomDockWidgetArea, dock);
  tabifyDockWidget(findChild<QDockWidget*>("Problems"), dock);
  dock->hide();
  connect(panel, &AnalysisPanel::marksChanged, this, [this, panel] {
    std::vector<Square> marks;
    for (const MapMark& m : panel->Marks()) marks.push_back({m.x, m.y});
    canvas_->SetMarks(std::move(marks));
  });
  connect(panel, &AnalysisPanel::showSquare, this, &MainWindow::ShowSquare);
  // Marks belong to the open dock: closing it takes them off the map.
  connect(dock, &QDockWidget::visibilityChanged, this, [this, panel](bool shown) {
    if (!shown)
      canvas_->SetMarks({});
    else
      Q_EMIT panel->marksChanged();
  });
  // An analysis speaks of the level it played: a new or opened level puts it away.
  connect(&doc_, &LevelDocument::replaced, dock, &QDockWidget::hide);
  AddAction(level, "analyse", "&Analyse", Qt::Key_F6, [this, panel, dock] {
    std::string replay;
    QFile solution(SolutionPath(doc_.Path()));
    if (solution.open(QIODevice::ReadOnly)) replay = solution.readAll().toStdString();
    dock->show();
    dock->raise();
    panel->Analyse(doc_.Data(), replay);
  });
#else
  // This build has no try window or analysis: the menu says so rather than vanish.
  level->addAction("Try It and Analyse are not in this build")->setEnabled(false);
#endif
}

}  // namespace qb::editor
