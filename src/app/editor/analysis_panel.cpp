// The editor's analysis panel: runs the analysis of a level and its solution on a worker thread
// and shows its figures, in the words of `quorbit-level analyse`.
#include "app/editor/analysis_panel.h"

#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QTableWidget>
#include <QThread>
#include <QVBoxLayout>

#include "analysis/analyse.h"
#include "analysis/analysis_text.h"
#include "analysis/headless_level.h"
#include "play/replay.h"
#include "ui/desktop/tool_art.h"

namespace qb::editor {
namespace {

// A window this narrow leaves the player a cycle or two: worth a look on the map.
constexpr int kNarrowWidth = 2;
constexpr int kPlaceRole = Qt::UserRole;

QString Q(const std::string& s) {
  return QString::fromStdString(s);
}

// What the worker works on and what it leaves.
struct Job {
  std::unique_ptr<analysis::HeadlessLevel> level;
  analysis::Presses presses;
  analysis::Analysis result;
  std::string fault;
};

QTableWidgetItem* Cell(const QString& text) {
  auto* item = new QTableWidgetItem(text);
  item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
  return item;
}

}  // namespace

AnalysisPanel::AnalysisPanel(QWidget* parent) : QWidget(parent) {
  setObjectName("AnalysisPanel");
  auto* column = new QVBoxLayout(this);
  summary_ = new QLabel("Analyse plays the level with its solution.", this);
  summary_->setWordWrap(true);
  summary_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  column->addWidget(summary_);

  presses_ = new QTableWidget(0, 6, this);
  presses_->setHorizontalHeaderLabels(
      {"Cycle", "Tool", "Alone", "With the later ones", "Redundant", "Leader at"});
  presses_->verticalHeader()->hide();
  presses_->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  presses_->setSelectionBehavior(QAbstractItemView::SelectRows);
  presses_->setToolTip(
      "The cycles each press can be made at and still win: moved alone, and "
      "moved together with the presses after it. Narrow windows are red.");
  column->addWidget(presses_, 1);

  others_ = new QListWidget(this);
  others_->setWordWrap(true);
  others_->setMaximumHeight(others_->fontMetrics().height() * 6);
  column->addWidget(others_);

  const auto place = [this](const QVariant& v) {
    if (v.canConvert<QPoint>() && v.toPoint().x() >= 0)
      Q_EMIT showSquare(v.toPoint().x(), v.toPoint().y());
  };
  connect(presses_, &QTableWidget::cellClicked, this,
          [this, place](int row, int) { place(presses_->item(row, 0)->data(kPlaceRole)); });
  connect(others_, &QListWidget::itemClicked, this,
          [place](QListWidgetItem* item) { place(item->data(kPlaceRole)); });
}

AnalysisPanel::~AnalysisPanel() {
  for (QThread* t : findChildren<QThread*>()) t->wait();
}

void AnalysisPanel::Analyse(const LevelData& level, const std::string& replayText) {
  const int generation = ++generation_;
  const ReplayFile replay = ParseReplay(replayText);
  if (!replay.error.empty()) return ShowProblem("The solution is not a replay: " + Q(replay.error));
  auto job = std::make_shared<Job>();
  std::string refusal;
  job->level = analysis::LoadHeadless("level.lvl", WriteLevel(level), refusal);
  if (!job->level) return ShowProblem(Q(refusal));
  job->presses = analysis::PressesOf(replay.slots);

  ShowProblem("Analysing: the level is played with the solution and its variations...");
  QThread* worker = QThread::create([job] {
    try {
      job->result = analysis::Analyse(job->level->game, job->presses);
    } catch (const std::exception& e) {
      job->fault = e.what();
    }
  });
  worker->setParent(this);  // the panel waits for it when it goes
  worker_ = worker;
  connect(worker, &QThread::finished, this, [this, worker, job, generation] {
    if (worker_ == worker) worker_ = nullptr;
    worker->deleteLater();
    if (generation != generation_) return;  // a newer analysis is on its way
    if (!job->fault.empty()) return ShowProblem("A program fault while playing: " + Q(job->fault));
    Show(job->result);
  });
  worker->start();
}

void AnalysisPanel::ShowProblem(const QString& message) {
  summary_->setText(message);
  presses_->setRowCount(0);
  others_->clear();
  SetMarks({});
}

void AnalysisPanel::Show(const analysis::Analysis& a) {
  using namespace qb::analysis;
  summary_->setText(Q(ResultLine(a) + "\n" + PressesLine(a)));
  std::vector<MapMark> marks;
  presses_->setRowCount(static_cast<int>(a.presses.size()));
  for (int row = 0; row < presses_->rowCount(); ++row) {
    const PressFigures& f = a.presses[static_cast<std::size_t>(row)];
    const auto tool = std::string_view(kReplayLetters).find(f.press.letter);
    const bool placed = f.leader.x >= 0;
    const QString at = placed ? QString("%1, %2").arg(f.leader.x).arg(f.leader.y) : "not out";
    const QStringList cells = {QString::number(f.press.cycle),
                               QString(f.press.letter) + " " + ui::ToolName(static_cast<int>(tool)),
                               Q(WindowText(f.alone)),
                               Q(WindowText(f.shifted)),
                               f.redundant ? "yes" : "",
                               at};
    const bool narrow = f.alone.Width() <= kNarrowWidth;
    for (int c = 0; c < cells.size(); ++c) {
      QTableWidgetItem* item = Cell(cells[c]);
      item->setToolTip(Q(PressLine(f)));
      if (narrow) item->setBackground(QColor(255, 205, 205));
      presses_->setItem(row, c, item);
    }
    presses_->item(row, 0)->setData(kPlaceRole, QPoint(f.leader.x, f.leader.y));
    if (narrow && placed)
      marks.push_back({f.leader.x, f.leader.y,
                       QString("cycle %1 %2: a window of %3")
                           .arg(f.press.cycle)
                           .arg(f.press.letter)
                           .arg(Q(WindowText(f.alone)))});
  }
  others_->clear();
  others_->addItem(Q(NoToolsLine(a)));
  others_->addItem(Q(OneToolLine(a)));
  auto* space = new QListWidgetItem(Q(SpaceLine(a)), others_);
  // The region walls seal away is the one a designer must act on; without one, the largest
  // region nobody entered.
  const bool sealed = a.space.sealed > 0;
  space->setData(kPlaceRole, sealed ? QPoint(a.space.sealedX, a.space.sealedY)
                                    : QPoint(a.space.regionX, a.space.regionY));
  space->setToolTip("Click to see the region on the map.");
  const QString why =
      QString("no character can reach this sealed region of %1 squares").arg(a.space.sealed);
  for (const Place& p : a.space.sealedSquares) marks.push_back({p.x, p.y, why});
  SetMarks(std::move(marks));
}

void AnalysisPanel::SetMarks(std::vector<MapMark> marks) {
  if (marks.empty() && marks_.empty()) return;
  marks_ = std::move(marks);
  Q_EMIT marksChanged();
}

QString AnalysisPanel::Text() const {
  QStringList lines = {summary_->text()};
  for (int row = 0; row < presses_->rowCount(); ++row)
    lines << "  " + presses_->item(row, 0)->toolTip();
  for (int i = 0; i < others_->count(); ++i) lines << others_->item(i)->text();
  return lines.join('\n');
}

}  // namespace qb::editor
