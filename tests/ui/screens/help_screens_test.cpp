// The splash that loads the game once.
#include <QApplication>
#include <QTest>

#include "ui/screens/screens.h"
#include "ui/screens/splash.h"

using qb::ui::Splash;

class HelpScreensTest : public QObject {
  Q_OBJECT
 private slots:
  void runSplashLoadsOnceEvenWhenLoadingRunsEvents();
};

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
