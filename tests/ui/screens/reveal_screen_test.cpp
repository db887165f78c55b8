// The title and result screens: the timed reveal, the tier celebration and how they close.
#include "ui/screens/reveal_screen.h"

#include <QApplication>
#include <QTest>
#include <QTimer>
#include <functional>

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
  void onlyAWonTierFlashesYellowUntilTheEnd();
  void clickOrEnterClosesMidRevealEscapeDoesNot();
  void showScreenReturnsWhenClosedMidReveal();
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
  QVERIFY(!Shown(d.Label1()) && !Shown(d.Line1()) && !Shown(d.Label2(0)));
  for (int step = 1; step <= lines + 6; ++step) {  // steps after the last change nothing
    d.Step();
    QCOMPARE(d.RevealStep(), std::min(step, lines + 3));
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
  QVERIFY(!d.Celebrating());
}

// Winning level 20 gives the tier message, and the window is light yellow from the first step
// until the step that ends the reveal. A won level without it, and the other screens, never are.
void RevealScreenTest::onlyAWonTierFlashesYellowUntilTheEnd() {
  qb::test::RecorderHost host;
  qb::Game g(host);
  qb::InitTables(g);
  g.LevelNumber = 20;
  g.CurrentSkill = 1;
  g.CharactersTotal = 10;
  g.CharactersNeeded = 5;
  g.SavedCount = 7;
  RevealScreen tier(Screen::WinLevel, qb::WinLevelTexts(g));
  RevealScreen plainWin(Screen::WinLevel, Texts(5, ""));
  RevealScreen lost(Screen::LooseLevel, Texts(5));
  const QColor plain = tier.palette().color(QPalette::Window);
  QVERIFY(plain != kLightYellow);
  for (int step = 1; step <= 8; ++step) {
    for (RevealScreen* d : {&tier, &plainWin, &lost}) d->Step();
    const bool yellow = step < 8;
    QCOMPARE(tier.Celebrating(), yellow);
    QCOMPARE(tier.palette().color(QPalette::Window), yellow ? kLightYellow : plain);
    QVERIFY(!plainWin.Celebrating() && !lost.Celebrating());
    QCOMPARE(plainWin.palette().color(QPalette::Window), plain);
  }
}

// A click anywhere or Enter closes a screen at any step. Esc is not a way out, and the release
// of an Enter pressed in another window (the chooser's Play) must not close the card before the
// player has seen it.
void RevealScreenTest::clickOrEnterClosesMidRevealEscapeDoesNot() {
  const std::vector<std::function<void(RevealScreen&)>> closes = {
      [](RevealScreen& d) { QTest::mouseClick(&d, Qt::LeftButton, {}, QPoint(5, 5)); },
      [](RevealScreen& d) { QTest::mouseClick(d.Label2(0), Qt::LeftButton); },
      [](RevealScreen& d) { QTest::keyClick(&d, Qt::Key_Return); },
      [](RevealScreen& d) { QTest::keyClick(&d, Qt::Key_Enter, Qt::KeypadModifier); }};
  const Screen kinds[] = {Screen::Title, Screen::WinLevel, Screen::LooseLevel, Screen::Title};
  for (std::size_t i = 0; i < closes.size(); ++i) {
    RevealScreen d(kinds[i], Texts(3));
    d.show();
    for (int i = 0; i < 3; ++i) d.Step();
    QTest::keyClick(&d, Qt::Key_Escape);
    QTest::keyRelease(&d, Qt::Key_Return);
    QTest::keyClick(&d, Qt::Key_A);
    QVERIFY(d.isVisible());
    closes[i](d);
    QVERIFY(!d.isVisible());
    QCOMPARE(d.result(), int(QDialog::Accepted));
  }
  qb::ui::WonGameScreen won(qb::WonGameTexts());
  won.show();
  QTest::mouseClick(won.Label2(), Qt::LeftButton);
  QVERIFY(!won.isVisible());
}

void RevealScreenTest::showScreenReturnsWhenClosedMidReveal() {
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
  bool sawWonGame = false;
  WhenModalUp([&](QWidget* w) {
    sawWonGame = qobject_cast<qb::ui::WonGameScreen*>(w) != nullptr;
    QTest::keyClick(w, Qt::Key_Return);
  });
  qb::ui::ShowScreen(nullptr, Screen::WonGame, qb::WonGameTexts());
  QVERIFY(sawWonGame);
}

QTEST_MAIN(RevealScreenTest)
#include "reveal_screen_test.moc"
