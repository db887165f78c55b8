// The play window paints exactly what quorbit-sim --trace-view says, square by square.
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>
#include <sstream>

#include "sim_run.h"
#include "support/level_builder.h"
#include "ui/desktop/square_painter.h"
#include "window_fixture.h"

using qb::test::Window;

class ViewTraceTest : public QObject {
  Q_OBJECT
 private Q_SLOTS:
  void theWindowShowsTheTracedPictureEveryCycle();
};

void ViewTraceTest::theWindowShowsTheTracedPictureEveryCycle() {
  // Without its door the leader paces on after the animations, until the time runs out.
  qb::LevelData level = qb::test::EveryAnimation();
  level.Square(39, 3) = level.Square(39, 4) = qb::MetalWall;
  const char* replay = "2 C\n18 L\n46 X\n";
  const int cycles = 300;

  Window w;
  w.WriteBeginner(3, level);
  qb::SimOptions options;
  options.level = (w.Folder() + "/Levels/Beginner3.lvl").toStdString();
  options.replay = replay;
  options.maxCycles = cycles;
  options.traceView = true;
  std::ostringstream out, err;
  QCOMPARE(qb::RunSimulation(options, out, err).exitStatus, 0);
  const QStringList lines = QString::fromStdString(out.str()).split('\n', Qt::SkipEmptyParts);
  QCOMPARE(lines.size(), cycles + 2);

  w.Play(3);
  for (const auto& [t, letters] : {std::pair{2, "C"}, {18, "L"}, {46, "X"}})
    w.g.ReplayLog(t) = letters;
  w.g.ReplayPlaying = qb::True;
  qb::ViewCell traced[40][40];
  for (int t = -1; t < cycles; ++t) {
    if (t >= 0) w.Ticks(1);
    const QJsonObject line = QJsonDocument::fromJson(lines[t + 1].toUtf8()).object();
    QCOMPARE(line["t"].toInt(), t);
    for (const QJsonValue& v : line["squares"].toArray()) {
      const QJsonArray s = v.toArray();
      const int face = s[3].toInt();
      traced[s[0].toInt()][s[1].toInt()] = {static_cast<qb::Colour>(s[2].toInteger()), face != 0,
                                            static_cast<int8_t>(face < 0 ? -1 : 1),
                                            face == 2 || face == -2};
    }
    if (t % 10 != 9 && t > 60) continue;  // every cycle of the animations, then every tenth
    const QImage shot = w.desk->Picture1()->grab().toImage().convertToFormat(QImage::Format_RGB32);
    const int n = shot.width() / 40;
    for (int c = 0; c < 40; ++c)
      for (int r = 0; r < 40; ++r) {
        QImage expected(n, n, QImage::Format_RGB32);
        QPainter painter(&expected);
        qb::ui::PaintSquare(painter, expected.rect(), traced[c][r]);
        painter.end();
        const QImage shown = shot.copy(c * n, r * n, n, n);
        QVERIFY2(shown == expected,
                 qPrintable(QString("cycle %1, square %2,%3").arg(t).arg(c).arg(r)));
      }
  }
}

QTEST_MAIN(ViewTraceTest)
#include "view_trace_test.moc"
