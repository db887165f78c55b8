// The live list of the level's problems.
#include "app/editor/problems_panel.h"

#include <QFileInfo>

#include "app/editor/level_document.h"
#include "leveltext/level_problems.h"

namespace qb::editor {
namespace {

constexpr int kSquareRole = Qt::UserRole;

}  // namespace

ProblemsPanel::ProblemsPanel(LevelDocument& doc, QWidget* parent) : QListWidget(parent), doc_(doc) {
  pending_.setSingleShot(true);
  pending_.setInterval(150);
  connect(&pending_, &QTimer::timeout, this, &ProblemsPanel::Refresh);
  connect(&doc_, &LevelDocument::changed, &pending_, qOverload<>(&QTimer::start));
  connect(&doc_, &LevelDocument::pathChanged, &pending_, qOverload<>(&QTimer::start));
  connect(this, &QListWidget::itemClicked, this, [this](QListWidgetItem* item) {
    const QPoint s = item->data(kSquareRole).toPoint();
    if (!item->data(kSquareRole).isNull()) Q_EMIT showSquare(s.x(), s.y());
  });
  Refresh();
}

void ProblemsPanel::Refresh() {
  pending_.stop();
  clear();
  const QString name = doc_.Path().isEmpty() ? "untitled.lvl" : QFileInfo(doc_.Path()).fileName();
  for (const leveltext::LevelProblem& problem :
       leveltext::LevelProblems(doc_.Data(), name.toStdString())) {
    auto* item = new QListWidgetItem(QString::fromStdString(problem.message), this);
    item->setIcon(style()->standardIcon(problem.refused ? QStyle::SP_MessageBoxCritical
                                                        : QStyle::SP_MessageBoxWarning));
    if (problem.square)
      item->setData(kSquareRole, QPoint(problem.square->first, problem.square->second));
  }
  if (count() == 0) addItem("No problems: the game plays this level.");
}

}  // namespace qb::editor
