// The instructions pages, and the splash that loads the game once.
#include <QApplication>
#include <QLabel>
#include <QTest>

#include "ui/screens/instructions.h"
#include "ui/screens/screens.h"
#include "ui/screens/splash.h"

using qb::ui::Instructions;
using qb::ui::Splash;

namespace {

// The indexes of the pages that are not hidden.
QList<int> ShownPages(const Instructions& d) {
  QList<int> shown;
  for (int i = 0; i < 3; ++i)
    if (!d.Frame1(i)->isHidden()) shown << i;
  return shown;
}

QStringList Texts(const QWidget* page) {
  QStringList out;
  for (const QLabel* l : page->findChildren<QLabel*>()) out << l->text();
  return out;
}

// Clicks the round indicator: a click beside a short caption does not reach the button.
void ClickOption(QRadioButton* option) {
  QTest::mouseClick(option, Qt::LeftButton, {}, QPoint(6, option->height() / 2));
}

}  // namespace

class HelpScreensTest : public QObject {
  Q_OBJECT
 private slots:
  void instructionsShowExactlyOnePageWithItsOwnTexts();
  void runSplashLoadsOnceEvenWhenLoadingRunsEvents();
};

// Each page carries its own texts, not a neighbour's, and switching pages does not make the
// window jump in size.
void HelpScreensTest::instructionsShowExactlyOnePageWithItsOwnTexts() {
  Instructions d;
  d.show();
  QCOMPARE(ShownPages(d), QList<int>{0});
  QVERIFY(d.Option1(0)->isChecked());
  const QSize size = d.size();
  for (int page : {2, 1, 0}) {
    ClickOption(d.Option1(page));
    QCOMPARE(ShownPages(d), QList<int>{page});
    QCOMPARE(d.size(), size);
  }
  QVERIFY(Texts(d.Frame1(0)).first().startsWith(QStringLiteral("* The idea of Quorbit")));
  QVERIFY(Texts(d.Frame1(1)).contains(QStringLiteral("ESC - Restart Level")));
  QCOMPARE(Texts(d.Frame1(2)).first(), QStringLiteral("Colours:"));
}

// The play window's load may take long and run its own event loop (a message box); the splash
// timer must not fire into it, and the splash stays up until it is done.
void HelpScreensTest::runSplashLoadsOnceEvenWhenLoadingRunsEvents() {
  int loads = 0;
  auto splashUp = [] {
    for (QWidget* w : QApplication::topLevelWidgets())
      if (qobject_cast<Splash*>(w) && w->isVisible()) return true;
    return false;
  };
  bool upBeforeLoading = false, upAfterLoading = false;
  qb::ui::RunSplash([&] {
    ++loads;
    upBeforeLoading = splashUp();
    QTest::qWait(350);
    upAfterLoading = splashUp();
  });
  QCOMPARE(loads, 1);
  QVERIFY(upBeforeLoading);
  QVERIFY(upAfterLoading);
  QVERIFY(!splashUp());
}

QTEST_MAIN(HelpScreensTest)
#include "help_screens_test.moc"
