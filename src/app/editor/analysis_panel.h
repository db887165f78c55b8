// The editor's analysis panel: the figures of `quorbit-level analyse` for the level and its
// solution, and the squares worth a look marked on the map.
#pragma once

#include <QString>
#include <QWidget>
#include <memory>
#include <string>
#include <vector>

#include "core/level_file.h"

class QLabel;
class QListWidget;
class QTableWidget;
class QThread;

namespace qb::analysis {
struct Analysis;
}

namespace qb::editor {

struct MapMark {
  int x = 0, y = 0;
  QString why;
};  // a square to outline on the map

class AnalysisPanel : public QWidget {
  Q_OBJECT
 public:
  explicit AnalysisPanel(QWidget* parent = nullptr);
  ~AnalysisPanel() override;

  // Analyses `level` played by `replayText` (data/solutions form); shows the figures of
  // `quorbit-level analyse`; a level the game refuses shows the loader's message instead. The
  // plays run on a worker thread (a large level takes seconds); the figures and the marks come
  // when they are done, with marksChanged.
  void Analyse(const qb::LevelData& level, const std::string& replayText);
  // Narrow presses (the leader's square at a press whose window is one or two cycles wide) and
  // the squares of the largest empty region no character entered.
  const std::vector<MapMark>& Marks() const { return marks_; }
  bool Busy() const { return worker_ != nullptr; }
  // The panel's lines as text, top to bottom (for tests and for copying).
  QString Text() const;

 Q_SIGNALS:
  void marksChanged();
  void showSquare(int x, int y);  // a click on a figure that has a place

 private:
  void ShowProblem(const QString& message);
  void Show(const analysis::Analysis& a);
  void SetMarks(std::vector<MapMark> marks);

  QLabel* summary_ = nullptr;
  QTableWidget* presses_ = nullptr;
  QListWidget* others_ = nullptr;
  std::vector<MapMark> marks_;
  QThread* worker_ = nullptr;
  int generation_ = 0;  // a newer Analyse makes the result of an older run stale
};

}  // namespace qb::editor
