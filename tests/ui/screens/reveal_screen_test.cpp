// The title and result screens: the timed reveal, the tier celebration and how they close.
#include "ui/screens/reveal_screen.h"

#include <QApplication>
#include <QTest>
#include <QTimer>

#include "level/screens.h"
#include "support/recorder_host.h"
#include "ui/screens/screens.h"
#include "ui/screens/won_game_screen.h"

using qb::Screen;
using qb::ScreenTexts;
using qb::ui::RevealScreen;

namespace {

const QColor kOrange(0xFF, 0xC0, 0x80);
const QColor kRed(0xFF, 0, 0);
const QColor kLightYellow(0xFF, 0xFF, 0xC0);

ScreenTexts Texts(int lines, const std::string& last = "last") {
  ScreenTexts t{"Title", {}};
  for (int i = 0; i + 1 < lines; ++i) t.lines.push_back("line " + std::to_string(i));
  if (lines > 0) t.lines.push_back(last);
  return t;
}

QColor TextColour(const QWidget* w) {
  return w->palette().color(QPalette::WindowText);
}
bool Shown(const QWidget* w) {
  return !w->isHidden();
}

// Closes the modal window that is up once the event loop runs, as a player would.
template <typename Act>
void WhenModalUp(Act act) {
  QTimer::singleShot(0, [act] {
    QWidget* w = QApplication::activeModalWidget();
    QVERIFY(w);
    act(w);
  });
}

}  // namespace

class RevealScreenTest : public QObject {
  Q_OBJECT
 private slots:
  void revealShowsOnePartPerStep_data();
  void revealShowsOnePartPerStep();
  void stepsAfterTheLastChangeNothing();
  void timerRunsTheRevealAndStops();
  void wonTierFlashesYellowUntilTheEnd();
  void wonLevelWithoutTierMessageStaysPlain();
  void clickOrEnterClosesMidReveal();
  void escapeAndAStrayEnterReleaseDoNotClose();
  void showScreenReturnsWhenClickedMidReveal();
  void wonGameClosesOnClickOrEnter();
};

void RevealScreenTest::revealShowsOnePartPerStep_data() {
  QTest::addColumn<int>("screen");
  QTest::addColumn<int>("lines");
  QTest::addColumn<QColor>("highlight");
  QTest::newRow("title") << int(Screen::Title) << 3 << kOrange;
  QTest::newRow("won") << int(Screen::WinLevel) << 5 << kOrange;
  QTest::newRow("lost") << int(Screen::LooseLevel) << 3 << kRed;
}

// After step 1 the title flashes, after step 2 the line, then each text in turn; whatever was
// shown before has turned black, and the last step only turns the last text black.
void RevealScreenTest::revealShowsOnePartPerStep() {
  QFETCH(int, screen);
  QFETCH(int, lines);
  QFETCH(QColor, highlight);
  RevealScreen d(static_cast<Screen>(screen), Texts(lines));
  QCOMPARE(d.Label2Count(), lines);
  QVERIFY(!Shown(d.Label1()) && !Shown(d.Line1()));
  for (int i = 0; i < lines; ++i) QVERIFY(!Shown(d.Label2(i)));

  for (int step = 1; step <= lines + 3; ++step) {
    d.Step();
    QCOMPARE(d.RevealStep(), step);
    QVERIFY(Shown(d.Label1()));
    QCOMPARE(TextColour(d.Label1()), step == 1 ? highlight : QColor(Qt::black));
    QCOMPARE(Shown(d.Line1()), step >= 2);
    if (step >= 2) QCOMPARE(d.Line1()->Colour(), step == 2 ? highlight : QColor(Qt::black));
    for (int i = 0; i < lines; ++i) {
      const int flashesAt = i + 3;
      QCOMPARE(Shown(d.Label2(i)), step >= flashesAt);
      if (step >= flashesAt)
        QCOMPARE(TextColour(d.Label2(i)), step == flashesAt ? highlight : QColor(Qt::black));
    }
    QCOMPARE(d.TimerRunning(), step < lines + 3);
  }
}

void RevealScreenTest::stepsAfterTheLastChangeNothing() {
  RevealScreen d(Screen::WinLevel, Texts(5));
  for (int i = 0; i < 8; ++i) d.Step();
  QVERIFY(!d.TimerRunning());
  for (int i = 0; i < 4; ++i) d.Step();
  for (int i = 0; i < 5; ++i) {
    QVERIFY(Shown(d.Label2(i)));
    QCOMPARE(TextColour(d.Label2(i)), QColor(Qt::black));
  }
  QVERIFY(!d.Celebrating());
}

void RevealScreenTest::timerRunsTheRevealAndStops() {
  RevealScreen d(Screen::Title, Texts(3));
  d.show();
  QVERIFY(d.TimerRunning());
  QTRY_VERIFY_WITH_TIMEOUT(!d.TimerRunning(), 3000);
  QCOMPARE(d.RevealStep(), 6);
  QCOMPARE(TextColour(d.Label2(2)), QColor(Qt::black));
}

// Winning level 20 gives the tier message, and the window is light yellow from the first step
// until the step that ends the reveal.
void RevealScreenTest::wonTierFlashesYellowUntilTheEnd() {
  qb::test::RecorderHost host;
  qb::Game g(host);
  qb::InitTables(g);
  g.LevelNumber = 20;
  g.CurrentSkill = 1;
  g.CharactersTotal = 10;
  g.CharactersNeeded = 5;
  g.SavedCount = 7;
  const ScreenTexts texts = qb::WinLevelTexts(g);
  RevealScreen d(Screen::WinLevel, texts);
  const QColor plain = d.palette().color(QPalette::Window);
  QVERIFY(plain != kLightYellow);
  for (int step = 1; step <= 8; ++step) {
    d.Step();
    const bool yellow = step < 8;
    QCOMPARE(d.Celebrating(), yellow);
    QCOMPARE(d.palette().color(QPalette::Window), yellow ? kLightYellow : plain);
  }
}

void RevealScreenTest::wonLevelWithoutTierMessageStaysPlain() {
  RevealScreen d(Screen::WinLevel, Texts(5, ""));
  const QColor plain = d.palette().color(QPalette::Window);
  for (int step = 1; step <= 8; ++step) {
    d.Step();
    QVERIFY(!d.Celebrating());
    QCOMPARE(d.palette().color(QPalette::Window), plain);
  }
  // The title card and the lost screen never celebrate, whatever their last text.
  RevealScreen lost(Screen::LooseLevel, Texts(3));
  lost.Step();
  QVERIFY(!lost.Celebrating());
}

void RevealScreenTest::clickOrEnterClosesMidReveal() {
  {
    RevealScreen d(Screen::Title, Texts(3));
    d.show();
    d.Step();
    QTest::mouseClick(&d, Qt::LeftButton, {}, QPoint(5, 5));
    QVERIFY(!d.isVisible());
    QCOMPARE(d.result(), int(QDialog::Accepted));
  }
  {
    RevealScreen d(Screen::WinLevel, Texts(5));
    d.show();
    for (int i = 0; i < 3; ++i) d.Step();
    QTest::mouseClick(d.Label2(0), Qt::LeftButton);
    QVERIFY(!d.isVisible());
  }
  {
    RevealScreen d(Screen::LooseLevel, Texts(3));
    d.show();
    d.Step();
    d.Step();
    QTest::keyClick(&d, Qt::Key_Return);
    QVERIFY(!d.isVisible());
    QVERIFY(d.RevealStep() < 6);
  }
  {
    RevealScreen d(Screen::Title, Texts(3));
    d.show();
    QTest::keyClick(&d, Qt::Key_Enter, Qt::KeypadModifier);
    QVERIFY(!d.isVisible());
  }
}

// Esc is not a way out, and the release of an Enter pressed in another window (the chooser's
// Play) must not close the card before the player has seen it.
void RevealScreenTest::escapeAndAStrayEnterReleaseDoNotClose() {
  RevealScreen d(Screen::Title, Texts(3));
  d.show();
  QTest::keyClick(&d, Qt::Key_Escape);
  QVERIFY(d.isVisible());
  QTest::keyRelease(&d, Qt::Key_Return);
  QVERIFY(d.isVisible());
  QTest::keyClick(&d, Qt::Key_A);
  QVERIFY(d.isVisible());
}

void RevealScreenTest::showScreenReturnsWhenClickedMidReveal() {
  int stepWhenClicked = -1;
  WhenModalUp([&](QWidget* w) {
    auto* d = qobject_cast<RevealScreen*>(w);
    QVERIFY(d);
    stepWhenClicked = d->RevealStep();
    QTest::mouseClick(d, Qt::LeftButton, {}, QPoint(3, 3));
  });
  qb::ui::ShowScreen(nullptr, Screen::LooseLevel, Texts(3));
  QVERIFY(stepWhenClicked >= 0 && stepWhenClicked < 6);
  QVERIFY(!QApplication::activeModalWidget());
}

void RevealScreenTest::wonGameClosesOnClickOrEnter() {
  const ScreenTexts texts = qb::WonGameTexts();
  {
    qb::ui::WonGameScreen d(texts);
    QCOMPARE(d.Label1()->text(), QStringLiteral("Well Done!"));
    QVERIFY(d.Label2()->text().startsWith(QStringLiteral("You have completed Quorbit 2.")));
    d.show();
    QTest::mouseClick(d.Label2(), Qt::LeftButton);
    QVERIFY(!d.isVisible());
  }
  bool sawWonGame = false;
  WhenModalUp([&](QWidget* w) {
    sawWonGame = qobject_cast<qb::ui::WonGameScreen*>(w) != nullptr;
    QTest::keyClick(w, Qt::Key_Return);
  });
  qb::ui::ShowScreen(nullptr, Screen::WonGame, texts);
  QVERIFY(sawWonGame);
}

QTEST_MAIN(RevealScreenTest)
#include "reveal_screen_test.moc"
