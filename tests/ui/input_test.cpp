// Keys, mouse and scroll bars of the play window: each reaches the rules with the right numbers.
#include <QtTest>

#include "ui/desktop/key_codes.h"
#include "ui/screens/screens.h"
#include "window_fixture.h"

using qb::test::Window;

class InputTest : public QObject {
  Q_OBJECT
 private Q_SLOTS:
  void pauseAndRestartKeys();
  void toolKeysAreTheTopRowOfAnyLayout();
  void scrollBarsMoveTheViewAndNeverKeepFocus();
  void menusAndScreensKeepTheirKeysAndTheMusicGoesOn_data();
  void menusAndScreensKeepTheirKeysAndTheMusicGoesOn();
};

// A repeated key-up while P is held does not toggle again; Esc loads the level again without its
// title card.
void InputTest::pauseAndRestartKeys() {
  Window w;
  w.Play();
  QTest::keyClick(w.desk.get(), Qt::Key_P);
  QKeyEvent repeat(QEvent::KeyRelease, Qt::Key_P, Qt::NoModifier, QString(), true);
  QApplication::sendEvent(w.desk.get(), &repeat);
  QVERIFY(!w.desk->Timer1().isActive());
  QTest::keyClick(w.desk.get(), Qt::Key_P);
  w.Ticks(10);
  w.screens.clear();
  QTest::keyClick(w.desk.get(), Qt::Key_Escape);
  QCOMPARE(w.g.CharactersReleased, 0);
  QVERIFY(w.screens.empty());
}

// A key event as the platform makes it: the Qt key, its text and the native codes.
static int CodeOf(const char* platform, int qtKey, const QString& text, quint32 scanCode,
                  quint32 virtualKey, Qt::KeyboardModifiers mods = Qt::NoModifier) {
  const QKeyEvent e(QEvent::KeyPress, qtKey, mods, scanCode, virtualKey, 0, text);
  return qb::ui::KeyCodeOf(e, platform);
}

void InputTest::toolKeysAreTheTopRowOfAnyLayout() {
  // X11 and Wayland: French "&" and "_", US Shift+1, are the keys 1 and 8; the keypad's 1 is not.
  QCOMPARE(CodeOf("xcb", Qt::Key_Ampersand, "&", 10, 0x26), 49);
  QCOMPARE(CodeOf("wayland", Qt::Key_Underscore, "_", 17, 0x5f), 56);
  QCOMPARE(CodeOf("xcb", Qt::Key_Exclam, "!", 10, 0x21, Qt::ShiftModifier), 49);
  QCOMPARE(CodeOf("xcb", Qt::Key_1, "1", 87, 0xffb1, Qt::KeypadModifier), 0);
  QCOMPARE(CodeOf("xcb", Qt::Key_Return, "\r", 36, 0xff0d), 13);
  // Windows: the virtual key codes '1' to '8' whatever the layout; scan code 10 is the key 9.
  QCOMPARE(CodeOf("windows", Qt::Key_Eacute, QString::fromUtf8("é"), 3, 50), 50);
  QCOMPARE(CodeOf("windows", Qt::Key_9, "9", 10, 57), 57);
  // The play window reads them: French '"' (the key 3) builds.
  Window w;
  w.Play();
  w.Ticks(9);
  const int builds = w.g.ToolStock(2);
  QKeyEvent quote(QEvent::KeyPress, Qt::Key_QuoteDbl, Qt::NoModifier, 12, 51, 0, "\"");
  QApplication::sendEvent(w.desk.get(), &quote);
  QCOMPARE(w.g.ToolStock(2), builds - 1);
}

void InputTest::scrollBarsMoveTheViewAndNeverKeepFocus() {
  Window w;
  w.Play();
  w.desk->HScroll1()->setValue(7);
  QCOMPARE(w.g.pic.Map.frameX, 7);
  QTest::mouseClick(w.desk->HScroll1(), Qt::LeftButton, Qt::NoModifier,
                    QPoint(w.desk->HScroll1()->width() - 3, w.desk->HScroll1()->height() / 2));
  QCOMPARE(w.g.ViewX, 8);
  QVERIFY(QApplication::focusWidget() != w.desk->HScroll1());
  QTest::keyClick(w.desk.get(), Qt::Key_Right);  // the arrow still reaches the key handler
  QCOMPARE(w.g.ViewX, 9);
}

void InputTest::menusAndScreensKeepTheirKeysAndTheMusicGoesOn_data() {
  QTest::addColumn<QString>("opened");
  QTest::addColumn<int>("key");
  QTest::newRow("Level menu, Esc") << "menu" << int(Qt::Key_Escape);
  QTest::newRow("chooser, Esc") << "chooser" << int(Qt::Key_Escape);
  QTest::newRow("instructions, Enter") << "instructions" << int(Qt::Key_Return);
  QTest::newRow("about box, Enter") << "about" << int(Qt::Key_Return);
  QTest::newRow("title card, Enter") << "title" << int(Qt::Key_Return);
  QTest::newRow("refused level, Enter") << "refused" << int(Qt::Key_Return);
}

// The key goes where the platform sends it: to the open menu or modal screen while one is up
// (the press closes it), then to the play window.
void InputTest::menusAndScreensKeepTheirKeysAndTheMusicGoesOn() {
  QFETCH(QString, opened);
  QFETCH(int, key);
  Window w;
  w.desk->SetChooser(qb::ui::ShowChooseLevel);
  w.desk->SetHelpDialogs(qb::ui::ShowInstructions, qb::ui::ShowAbout);
  w.host.SetMessageShower({});
  if (opened == "title") {
    w.host.SetScreenShower({});
  } else {
    w.Play();
    w.Ticks(9);
  }
  const auto state = [&w] {  // level, released, replaying, paused, fast
    return std::array<int, 5>{w.g.LevelNumber, w.g.CharactersReleased, int(w.g.ReplayPlaying),
                              int(w.g.ui.LevelCmdChecked(0)), int(w.g.ui.LevelCmdChecked(1))};
  };
  std::array<int, 5> before{}, after{};
  bool keySent = false, musicKeptAlive = false;
  const auto hitKey = [&] {
    before = state();
    musicKeptAlive = w.desk->Timer2().isActive();  // a track that ends now starts again
    for (const bool press : {true, false}) {
      QWidget* top = QApplication::activePopupWidget();
      if (!top) top = QApplication::activeModalWidget();
      QWindow* target = (top ? top : w.desk.get())->windowHandle();
      press ? QTest::keyPress(target, Qt::Key(key)) : QTest::keyRelease(target, Qt::Key(key));
    }
    keySent = true;
  };
  if (opened == "menu") {
    w.desk->Menus().menuCmd[1]->popup(w.desk->mapToGlobal(QPoint(40, 0)));
    QVERIFY(QApplication::activePopupWidget());
    hitKey();
  } else {
    QTimer::singleShot(50, hitKey);
    if (opened == "chooser") w.desk->ChooseLevel();
    if (opened == "instructions") w.desk->Menus().helpCmd[0]->trigger();
    if (opened == "about") w.desk->Menus().helpCmd[2]->trigger();
    if (opened == "title") w.Play();
    if (opened == "refused") w.desk->PlayLevel(0, 7);
  }
  QTRY_VERIFY(keySent);
  QVERIFY(musicKeptAlive);
  after = state();
  QVERIFY(!QApplication::activeModalWidget() && !QApplication::activePopupWidget());
  QVERIFY(after == before);
}

QTEST_MAIN(InputTest)
#include "input_test.moc"
