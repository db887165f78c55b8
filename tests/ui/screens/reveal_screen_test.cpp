// The title and result screens: how they close, at any step of their reveal.
#include "ui/screens/reveal_screen.h"

#include <QTest>
#include <functional>

#include "level/screens.h"
#include "ui/screens/screens.h"
#include "ui/screens/won_game_screen.h"

using qb::Screen;
using qb::ScreenTexts;
using qb::ui::RevealScreen;

class RevealScreenTest : public QObject {
  Q_OBJECT
 private slots:
  void clickOrEnterClosesMidRevealEscapeDoesNot();
};

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
    RevealScreen d(kinds[i], ScreenTexts{"Title", {"one", "two", "three"}});
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

QTEST_MAIN(RevealScreenTest)
#include "reveal_screen_test.moc"
