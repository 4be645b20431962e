#include "strokestage.h"
#include "support/suite.h"

#include <QtGui/QShortcut>
#include <QtTest/QSignalSpy>

/// A view that is told of keys takes every one, and only while it has the keyboard.
class tst_keystrokeview : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aKeyComesToTheViewAndDoesNothingElse_data() { keys(); }
    void aKeyComesToTheViewAndDoesNothingElse();
    void aKeyThatComesToTheViewIsNoShortcut_data() { keys(); }
    void aKeyThatComesToTheViewIsNoShortcut();
    void elsewhereTheSameKeyIsAShortcut_data() { keys(); }
    void elsewhereTheSameKeyIsAShortcut();
    void elsewhereTheTabKeyMovesTheKeyboard();
    void elsewhereEscapeClosesTheDialog();
    void elsewhereReturnClicksTheDefaultButton();
    void elsewhereLettersAreTyped();
    void aKeyWithoutACodeDoesNothingElseEither();
    void takingTheKeyboardWarnsOfNothing();

private:
    static void keys();
};

namespace {

/// What of the keyboard reaches a widget, or is passed on to it by a control in it.
class KeyWatch : public QObject
{
public:
    explicit KeyWatch(QWidget &widget) { widget.installEventFilter(this); }

    int count = 0;

protected:
    bool eventFilter(QObject * /*watched*/, QEvent *event) override
    {
        if (event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease)
            ++count;
        return false;
    }
};

} // namespace

void tst_keystrokeview::keys()
{
    using keystroke::HardwareKey;
    QTest::addColumn<HardwareKey>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<int>("keyCode");
    const auto row = [](const char *name, const HardwareKey &key, int keyCode,
                        Qt::KeyboardModifiers modifiers = {}) {
        QTest::newRow(name) << key << modifiers << keyCode;
    };
    row("tab", keystroke::kTab, 48);
    row("shift and tab", {15, Qt::Key_Backtab}, 48, Qt::ShiftModifier);
    row("control and tab", {15, Qt::Key_Tab, QStringLiteral("\t")}, 48, Qt::ControlModifier);
    row("escape", keystroke::kEscape, 53);
    row("return", keystroke::kReturn, 36);
    row("keypad enter", {96, Qt::Key_Enter, QStringLiteral("\r")}, 76, Qt::KeypadModifier);
    row("space", {57, Qt::Key_Space, QStringLiteral(" ")}, 49);
    row("backspace", {14, Qt::Key_Backspace, QStringLiteral("\b")}, 51);
    row("left", {105, Qt::Key_Left}, 123);
    row("right", {106, Qt::Key_Right}, 124);
    row("up", {103, Qt::Key_Up}, 126);
    row("down", {108, Qt::Key_Down}, 125);
    row("page down", {109, Qt::Key_PageDown}, 121);
    row("F1", {59, Qt::Key_F1}, 122);
    row("F10", {68, Qt::Key_F10}, 109);
    row("menu", {127, Qt::Key_Menu}, 110);
    row("a letter", keystroke::kA, 0);
    row("control and A", {30, Qt::Key_A, QStringLiteral("\x01")}, 0, Qt::ControlModifier);
    row("control and Q", {16, Qt::Key_Q, QStringLiteral("\x11")}, 12, Qt::ControlModifier);
    row("alt and F4", {62, Qt::Key_F4}, 118, Qt::AltModifier);
    row("command and W", {17, Qt::Key_W, QStringLiteral("w")}, 13, Qt::MetaModifier);
}

void tst_keystrokeview::aKeyComesToTheViewAndDoesNothingElse()
{
    QFETCH(keystroke::HardwareKey, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    QFETCH(int, keyCode);
    StrokeStage stage;
    const KeyWatch passedOn(stage.dialog);
    keystroke::press(key, {.modifiers = modifiers});
    keystroke::release(key, {.modifiers = modifiers});
    const auto told = QStringLiteral("down %1, up %1").arg(keyCode);
    QCOMPARE(stage.view.told(), told);
    QVERIFY(stage.view.hasFocus());
    QVERIFY(stage.dialog.isVisible());
    QCOMPARE(stage.clicks, 0);
    QCOMPARE(passedOn.count, 0);
}

void tst_keystrokeview::aKeyThatComesToTheViewIsNoShortcut()
{
    QFETCH(keystroke::HardwareKey, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    StrokeStage stage;
    const QShortcut shortcut(QKeySequence(modifiers | key.key), &stage.dialog);
    const QSignalSpy fired(&shortcut, &QShortcut::activated);
    keystroke::press(key, {.modifiers = modifiers});
    QCOMPARE(stage.view.strokes.size(), std::size_t{1});
    QCOMPARE(fired.size(), 0);
}

void tst_keystrokeview::elsewhereTheSameKeyIsAShortcut()
{
    QFETCH(keystroke::HardwareKey, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    StrokeStage stage;
    stage.button.setFocus();
    const QShortcut shortcut(QKeySequence(modifiers | key.key), &stage.dialog);
    const QSignalSpy fired(&shortcut, &QShortcut::activated);
    keystroke::press(key, {.modifiers = modifiers});
    QCOMPARE(fired.size(), 1);
    QCOMPARE(stage.view.told(), QString());
}

void tst_keystrokeview::elsewhereTheTabKeyMovesTheKeyboard()
{
    StrokeStage stage;
    stage.field.setFocus();
    keystroke::press(keystroke::kTab);
    QVERIFY(stage.button.hasFocus()); // the view is given the keyboard by the mouse only
    keystroke::press({15, Qt::Key_Backtab}, {.modifiers = Qt::ShiftModifier});
    QVERIFY(stage.field.hasFocus());
    QCOMPARE(stage.view.told(), QString());
}

void tst_keystrokeview::elsewhereEscapeClosesTheDialog()
{
    StrokeStage stage;
    stage.field.setFocus();
    keystroke::press(keystroke::kEscape);
    QVERIFY(!stage.dialog.isVisible());
    QCOMPARE(stage.view.told(), QString());
}

void tst_keystrokeview::elsewhereReturnClicksTheDefaultButton()
{
    StrokeStage stage;
    stage.field.setFocus();
    keystroke::press(keystroke::kReturn);
    QCOMPARE(stage.clicks, 1);
    QCOMPARE(stage.view.told(), QString());
}

void tst_keystrokeview::elsewhereLettersAreTyped()
{
    StrokeStage stage;
    stage.field.setFocus();
    keystroke::tap(keystroke::kA);
    QCOMPARE(stage.field.text(), QStringLiteral("a"));
    QCOMPARE(stage.view.told(), QString());
}

void tst_keystrokeview::aKeyWithoutACodeDoesNothingElseEither()
{
    StrokeStage stage;
    const KeyWatch passedOn(stage.dialog);
    keystroke::tap(keystroke::kPause);
    // Such a key that types Escape does not close the dialog.
    keystroke::tap({keystroke::kPause.scanCode, Qt::Key_Escape});
    QVERIFY(stage.dialog.isVisible());
    QCOMPARE(passedOn.count, 0);
    QCOMPARE(stage.view.told(), QString());
}

/// That all keys come to one window is asked for only where the display offers it.
void tst_keystrokeview::takingTheKeyboardWarnsOfNothing()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
    StrokeStage stage;
    stage.field.setFocus();
    stage.view.setFocus();
    QVERIFY(stage.view.hasFocus());
}

KYR_GUI_TEST(tst_keystrokeview)
#include "tst_keystrokeview.moc"
