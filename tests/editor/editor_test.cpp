// The level editor driven as a designer drives it: drawing, undo, slots, properties, files.
#include <QDir>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QtTest>
#include <sstream>

#include "app/editor/analysis_panel.h"
#include "app/editor/main_window.h"
#include "app/editor/map_canvas.h"
#include "app/editor/problems_panel.h"
#include "app/editor/properties_panel.h"
#include "app/editor/slots_panel.h"
#include "app/editor/try_window.h"
#include "core/squares.h"
#include "sim_run.h"

using namespace qb;
using namespace qb::editor;

namespace {

void Mouse(QWidget& w, QEvent::Type type, QPoint at, Qt::MouseButton button,
           Qt::MouseButtons held) {
  QMouseEvent event(type, at, w.mapToGlobal(at), button, held, Qt::NoModifier);
  QApplication::sendEvent(&w, &event);
}

// Presses on `from`, moves to `to` and lets go there.
void Drag(MainWindow& w, Square from, Square to, Qt::MouseButton button = Qt::LeftButton) {
  MapCanvas& c = w.Canvas();
  Mouse(c, QEvent::MouseButtonPress, c.CentreOf(from), button, button);
  Mouse(c, QEvent::MouseMove, c.CentreOf(to), Qt::NoButton, button);
  Mouse(c, QEvent::MouseButtonRelease, c.CentreOf(to), button, Qt::NoButton);
}

void Use(MainWindow& w, DrawTool tool, int kind = -1) {
  w.Action(QString("tool%1").arg(static_cast<int>(tool)))->trigger();
  if (kind >= 0) w.Action(QString("kind%1").arg(kind))->trigger();
}

void SetSpin(MainWindow& w, const QString& name, int value) {
  QSpinBox* spin = w.Properties().Spin(name);
  spin->setValue(value);
  Q_EMIT spin->editingFinished();
}

std::vector<uint8_t> Bytes(const MainWindow& w) {
  return WriteLevel(const_cast<MainWindow&>(w).Document().Data());
}

QByteArray FileContent(const QString& path) {
  QFile f(path);
  return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("(unreadable)");
}

QStringList ProblemTexts(MainWindow& w) {
  w.Problems().Refresh();
  QStringList out;
  for (int i = 0; i < w.Problems().count(); ++i) out << w.Problems().item(i)->text();
  return out;
}

}  // namespace

class EditorTest : public QObject {
  Q_OBJECT
 private Q_SLOTS:
  void openingAndSavingEveryShippedLevelGivesTheSameBytes();
  void aLevelMadeFromNothingUndoesRedoesSavesAndWins();
  void aRefusedFileShowsTheLoadersMessageAndKeepsTheOpenLevel();
};

void EditorTest::openingAndSavingEveryShippedLevelGivesTheSameBytes() {
  QTemporaryDir out;
  MainWindow w;
  w.report = [](const QString& text) { QFAIL(qPrintable(text)); };
  int levels = 0;
  for (const auto& [folder, pattern] :
       {std::pair{QUORBIT_LEVEL_SOURCES, "*.txt"}, std::pair{QUORBIT_LEVELS_DIR, "*.lvl"}}) {
    for (const QFileInfo& file : QDir(folder).entryInfoList({pattern}, QDir::Files)) {
      if (file.fileName() == "CMakeLists.txt") continue;
      QVERIFY2(w.OpenFile(file.filePath()), qPrintable(file.filePath()));
      const QString copy = out.filePath(file.fileName());
      QVERIFY(w.SaveTo(copy));
      QCOMPARE(FileContent(copy), FileContent(file.filePath()));
      ++levels;
    }
  }
  QCOMPARE(levels, 160);

  // An edited text level is printed anew under its author's comments, and reads back the same.
  QVERIFY(w.OpenFile(QUORBIT_LEVEL_SOURCES "/Beginner1.txt"));
  Use(w, DrawTool::Pencil, Lava);
  Drag(w, {1, 1}, {1, 1});
  const QString edited = out.filePath("Edited.txt");
  QVERIFY(w.SaveTo(edited));
  QVERIFY(FileContent(edited).startsWith("# "));
  MainWindow reopened;
  QVERIFY(reopened.OpenFile(edited));
  QVERIFY(reopened.Document().Data() == w.Document().Data());
  QCOMPARE(reopened.Document().Data().Square(1, 1), int16_t{Lava});
}

void EditorTest::aLevelMadeFromNothingUndoesRedoesSavesAndWins() {
  MainWindow w;
  w.show();
  QVERIFY(ProblemTexts(w).join("\n").contains("no active entrance"));
  // A selection dragged from beyond the level's corner moves the squares it holds.
  Use(w, DrawTool::Pencil, SoftWall);
  Drag(w, {0, 0}, {0, 0});
  Use(w, DrawTool::Select);
  Drag(w, {-3, -3}, {1, 1});
  Drag(w, {0, 0}, {2, 2});
  QCOMPARE(w.Document().Data().Square(2, 2), int16_t{SoftWall});
  const int earlierSteps = w.Document().Undo().count();
  std::vector<std::vector<uint8_t>> states{Bytes(w)};
  // Every step is one undo step that changes the level.
  auto step = [&](const char* what, const std::function<void()>& act) {
    act();
    QVERIFY2(Bytes(w) != states.back(), what);
    states.push_back(Bytes(w));
  };
  const LevelData& d = w.Document().Data();
  // Ctrl+wheel zooms about the mouse without marking anything; the plain wheel is the scroll's.
  const int zoom = w.Canvas().Zoom();
  QWheelEvent wheel(QPointF(30, 30), w.Canvas().mapToGlobal(QPointF(30, 30)), {}, {0, 240},
                    Qt::NoButton, Qt::ControlModifier, Qt::NoScrollPhase, false);
  QApplication::sendEvent(&w.Canvas(), &wheel);
  QVERIFY(w.Canvas().Zoom() > zoom && !w.Canvas().Highlighted());

  step("outline", [&] {
    Use(w, DrawTool::Rectangle, MetalWall);
    Drag(w, {0, 0}, {39, 39});
  });
  QCOMPARE(d.Square(39, 17), int16_t{MetalWall});
  QCOMPARE(d.Square(38, 17), int16_t{Empty});
  step("floor", [&] {
    Use(w, DrawTool::FilledRectangle, SoftWall);
    Drag(w, {38, 31}, {1, 30});
  });
  QCOMPARE(d.Square(17, 31), int16_t{SoftWall});
  step("door", [&] {
    Use(w, DrawTool::Line, ExitDoor);
    Drag(w, {20, 28}, {20, 29});
  });
  step("pencil", [&] {
    Use(w, DrawTool::Pencil, Water);
    Drag(w, {25, 29}, {28, 29});  // the stroke joins its ends without gaps
  });
  step("flood", [&] {
    Use(w, DrawTool::Fill, Lava);
    Drag(w, {26, 29}, {26, 29});
  });
  QCOMPARE(d.Square(25, 29), int16_t{Lava});
  QCOMPARE(d.Square(28, 29), int16_t{Lava});
  QCOMPARE(d.Square(24, 29), int16_t{Empty});
  Use(w, DrawTool::Pick);
  Drag(w, {20, 29}, {20, 29});
  QCOMPARE(w.Canvas().Kind(), int{ExitDoor});

  Use(w, DrawTool::Select);
  Drag(w, {25, 29}, {28, 29});
  w.Action("copy")->trigger();
  Drag(w, {30, 25}, {30, 25});
  step("paste", [&] { w.Action("paste")->trigger(); });
  Drag(w, {29, 25}, {33, 25});
  step("flip", [&] { w.Action("flipH")->trigger(); });
  QCOMPARE(d.Square(29, 25), int16_t{Lava});
  QCOMPARE(d.Square(33, 25), int16_t{Empty});
  step("move", [&] { Drag(w, {30, 25}, {30, 22}); });
  QCOMPARE(d.Square(29, 22), int16_t{Lava});
  QCOMPARE(d.Square(29, 25), int16_t{Empty});
  step("cut", [&] { w.Action("cut")->trigger(); });
  QCOMPARE(d.Square(29, 22), int16_t{Empty});
  // Under the walkway: the lower floor row and the air below it swap, then both go.
  Drag(w, {10, 31}, {10, 32});
  step("flip vertically", [&] { w.Action("flipV")->trigger(); });
  QCOMPARE(d.Square(10, 31), int16_t{Empty});
  QCOMPARE(d.Square(10, 32), int16_t{SoftWall});
  step("delete", [&] { w.Action("delete")->trigger(); });
  QCOMPARE(d.Square(10, 32), int16_t{Empty});

  step("width", [&] { SetSpin(w, "width", 45); });
  QCOMPARE(d.GridWidth, int16_t{45});
  QCOMPARE(d.Square(39, 30), int16_t{MetalWall});
  step("height", [&] { SetSpin(w, "height", 42); });
  QCOMPARE(d.GridHeight, int16_t{42});
  QCOMPARE(d.Square(20, 39), int16_t{MetalWall});
  step("place entrance", [&] {
    w.Slots().setCurrentCell(0, 0);
    QCOMPARE(w.Canvas().Tool(), DrawTool::Slots);
    Drag(w, {9, 9}, {9, 9});
  });
  step("drag entrance", [&] { Drag(w, {9, 9}, {3, 28}); });
  QCOMPARE(d.Slots[0].EntranceX, 3);
  QCOMPARE(d.Slots[0].EntranceY, int16_t{28});
  step("teleport on", [&] { w.Slots().item(1, 2)->setCheckState(Qt::Checked); });
  step("teleport off", [&] { w.Slots().item(1, 2)->setCheckState(Qt::Unchecked); });
  step("start view", [&] {
    Use(w, DrawTool::View);
    Drag(w, {10, 10}, {19, 10});  // clamped: the view stays inside the level
  });
  QCOMPARE(d.StartViewX, 5);
  step("erase", [&] {
    Use(w, DrawTool::Pencil);
    Drag(w, {39, 5}, {39, 6}, Qt::RightButton);
  });
  QCOMPARE(d.Square(39, 6), int16_t{Empty});
  step("title", [&] {
    w.Properties().TitleEdit()->setText("Made Here");
    Q_EMIT w.Properties().TitleEdit()->editingFinished();
  });
  step("characters", [&] { SetSpin(w, "characters", 6); });
  step("needed", [&] { SetSpin(w, "needed", 4); });
  QCOMPARE(ProblemTexts(w), QStringList{"No problems: the game plays this level."});
  QVERIFY(w.windowTitle().contains("[*]") && w.isWindowModified());

  QUndoStack& undo = w.Document().Undo();
  QCOMPARE(undo.count(), earlierSteps + static_cast<int>(states.size()) - 1);
  for (auto i = states.size() - 1; i-- > 0;) {
    undo.undo();
    QVERIFY2(Bytes(w) == states[i], qPrintable(QString("undo to step %1").arg(i)));
  }
  for (std::size_t i = 1; i < states.size(); ++i) {
    undo.redo();
    QVERIFY2(Bytes(w) == states[i], qPrintable(QString("redo to step %1").arg(i)));
  }

  QTemporaryDir dir;
  const QString path = dir.filePath("Made.lvl");
  QVERIFY(w.SaveTo(path));
  QVERIFY(!w.isWindowModified());
  MainWindow reopened;
  QVERIFY(reopened.OpenFile(path));
  QVERIFY(reopened.Document().Data() == w.Document().Data());
  std::ostringstream out, err;
  SimOptions options;
  options.level = path.toStdString();
  const SimOutcome run = RunSimulation(options, out, err);
  QCOMPARE(run.exitStatus, 0);
  QVERIFY2(out.str().find(R"("result":"won")") != std::string::npos, out.str().c_str());

  // Level > Try It plays it in the play view; the won attempt goes beside it as its solution.
  bool won = false;
  QTimer::singleShot(0, [&] {
    auto* tryIt = qobject_cast<TryWindow*>(QApplication::activeModalWidget());
    for (int i = 0; tryIt && i < 1000 && !tryIt->Won(); ++i) tryIt->Tick();
    won = tryIt && tryIt->Won();
    for (QPushButton* b : tryIt ? tryIt->findChildren<QPushButton*>() : QList<QPushButton*>{})
      if (b->text().startsWith("Save Attempt")) b->click();
    if (tryIt) tryIt->reject();
  });
  w.Action("tryIt")->trigger();
  QVERIFY(won);
  QVERIFY(FileContent(dir.filePath("Made.replay")).contains("won"));
  // Level > Analyse plays that solution; the map outlines the squares the panel marks.
  w.Action("analyse")->trigger();
  auto* panel = w.findChild<AnalysisPanel*>();
  QTRY_VERIFY_WITH_TIMEOUT(!panel->Busy(), 30000);
  QVERIFY2(panel->Text().contains("cycles"), qPrintable(panel->Text()));
  QVERIFY(!panel->Marks().empty());
  QCOMPARE(w.Canvas().Marks().size(), panel->Marks().size());
  // They belong to the level analysed: another level opened takes them off the map.
  QVERIFY(w.OpenFile(path));
  QVERIFY(w.Canvas().Marks().empty());
}

void EditorTest::aRefusedFileShowsTheLoadersMessageAndKeepsTheOpenLevel() {
  MainWindow w;
  QStringList reports;
  w.report = [&](const QString& text) { reports << text; };
  w.askToSave = [] { return QMessageBox::Discard; };
  Use(w, DrawTool::Slots);
  Drag(w, {35, 5}, {35, 5});
  SetSpin(w, "width", 30);  // the entrance is now outside the level
  const QStringList problems = ProblemTexts(w);
  QVERIFY2(problems.size() == 1 && problems[0].contains("cannot be played: entrance 0 at (35, 5)"),
           qPrintable(problems.join("\n")));
  Q_EMIT w.Problems().itemClicked(w.Problems().item(0));
  QVERIFY(w.Canvas().Highlighted() == (Square{35, 5}));

  QTemporaryDir dir;
  const QString bad = dir.filePath("Refused.lvl");
  QVERIFY(w.SaveTo(bad));  // a designer may save work in progress the game refuses
  SetSpin(w, "needed", 7);
  const LevelData before = w.Document().Data();
  QVERIFY(!w.OpenFile(bad));
  QCOMPARE(reports.size(), 1);
  QVERIFY2(reports[0].startsWith("The level file " + bad + " cannot be played: entrance 0"),
           qPrintable(reports[0]));
  QFile text(dir.filePath("Broken.txt"));
  QVERIFY(text.open(QIODevice::WriteOnly));
  text.write("title: Broken\ncharacters: lots\n");
  text.close();
  QVERIFY(!w.OpenFile(text.fileName()));
  QVERIFY2(reports.last().contains("Broken.txt:2:"), qPrintable(reports.last()));
  QVERIFY(w.Document().Data() == before);
  QCOMPARE(w.Document().Path(), bad);
  QVERIFY(w.Document().Modified() && w.Document().Undo().canUndo());

  w.show();
  w.askToSave = [] { return QMessageBox::Cancel; };
  QVERIFY(!w.close());
  w.askToSave = [] { return QMessageBox::Discard; };
  QVERIFY(w.close());
}

QTEST_MAIN(EditorTest)
#include "editor_test.moc"
