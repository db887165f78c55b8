// The instructions pages, the about box and the splash's two ticks.
#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "ui/screens/about_box.h"
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
  void instructionsShowExactlyOnePage();
  void instructionsPagesHoldTheirOwnTexts();
  void instructionsAndAboutCloseOnOk();
  void splashTicksLoadOnceThenClose();
  void runSplashLoadsOnceEvenWhenLoadingRunsEvents();
};

void HelpScreensTest::instructionsShowExactlyOnePage() {
  Instructions d;
  QCOMPARE(d.windowTitle(), QStringLiteral("Instructions"));
  d.show();
  QCOMPARE(ShownPages(d), QList<int>{0});
  QVERIFY(d.Option1(0)->isChecked());
  ClickOption(d.Option1(2));
  QCOMPARE(ShownPages(d), QList<int>{2});
  ClickOption(d.Option1(1));
  QCOMPARE(ShownPages(d), QList<int>{1});
  ClickOption(d.Option1(0));
  QCOMPARE(ShownPages(d), QList<int>{0});
  // Switching pages does not make the window jump in size.
  const QSize size = d.size();
  ClickOption(d.Option1(2));
  QCOMPARE(d.size(), size);
}

// Each page carries its own texts, not a neighbour's.
void HelpScreensTest::instructionsPagesHoldTheirOwnTexts() {
  Instructions d;
  QVERIFY(Texts(d.Frame1(0)).first().startsWith(QStringLiteral("* The idea of Quorbit")));
  QCOMPARE(Texts(d.Frame1(1)).first(), QStringLiteral("Shortcuts:"));
  QVERIFY(Texts(d.Frame1(1)).contains(QStringLiteral("ESC - Restart Level")));
  QCOMPARE(Texts(d.Frame1(2)).first(), QStringLiteral("Colours:"));
  QCOMPARE(Texts(d.Frame1(2)).size(), 5);
}

void HelpScreensTest::instructionsAndAboutCloseOnOk() {
  {
    Instructions d;
    d.show();
    QTest::mouseClick(d.OkButton(), Qt::LeftButton);
    QVERIFY(!d.isVisible());
  }
  bool sawAbout = false;
  QTimer::singleShot(0, [&] {
    auto* d = qobject_cast<qb::ui::AboutBox*>(QApplication::activeModalWidget());
    QVERIFY(d);
    sawAbout = d->windowTitle() == QStringLiteral("About Quorbit");
    QPushButton* ok = d->findChild<QPushButton*>();
    QVERIFY(ok);
    QTest::mouseClick(ok, Qt::LeftButton);
  });
  qb::ui::ShowAbout(nullptr);
  QVERIFY(sawAbout);
}

void HelpScreensTest::splashTicksLoadOnceThenClose() {
  int loads = 0;
  Splash s([&] { ++loads; });
  bool finished = false;
  connect(&s, &Splash::finished, [&] { finished = true; });
  s.show();
  s.Tick();
  QCOMPARE(loads, 1);
  QVERIFY(s.isVisible());
  QVERIFY(!finished);
  s.Tick();
  QCOMPARE(s.SplashTicks(), 2);
  QVERIFY(!s.isVisible());
  QVERIFY(finished);
  s.Tick();
  QCOMPARE(loads, 1);
  QVERIFY(!s.TimerRunning());
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
