// The editor's window: the Level menu, which plays the level in a try window and analyses it.
#include <QDir>
#include <QDockWidget>
#include <QFile>
#include <QFileInfo>
#include <QMenuBar>

#include "app/editor/analysis_panel.h"
#include "app/editor/main_window.h"
#include "app/editor/map_canvas.h"
#include "app/editor/try_window.h"

namespace qb::editor {
namespace {

// Where a level's solution lives: beside it, with .replay for its extension.
QString SolutionPath(const QString& levelPath) {
  if (levelPath.isEmpty()) return {};
  const QFileInfo info(levelPath);
  return info.dir().filePath(info.completeBaseName() + ".replay");
}

}  // namespace

void MainWindow::BuildLevelMenu() {
  QMenu* level = menuBar()->addMenu("&Level");
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
}

}  // namespace qb::editor
