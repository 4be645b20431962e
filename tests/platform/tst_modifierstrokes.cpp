#include "strokestage.h"
#include "support/suite.h"

using keystroke::kA;
using keystroke::kLeftControl;
using keystroke::kLeftShift;
using keystroke::kRightShift;

/// What becomes of the display's events of modifier keys.
class tst_modifierstrokes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aModifierKeyHasItsOwnCodeAndTheFlagOfBothSides_data();
    void aModifierKeyHasItsOwnCodeAndTheFlagOfBothSides();
    void aHeldModifierKeyChangesTheFlagsOnce();
    void theFlagStaysWhileTheOtherOfTwoIsHeld();
    void flagsOfSeveralModifierKeysShowTogether();
    void noModifierKeyIsHeldAfterTheKeyboardWasElsewhere_data();
    void noModifierKeyIsHeldAfterTheKeyboardWasElsewhere();
    void aModifierKeyPressedElsewhereIsToldWhenItGoesUp();
    void theFlagStaysWhileTheOtherIsHeldSinceElsewhere();
    void aFlagOfTheDisplayDoesNotOutliveItsKey();
    void aKeyLetGoUnseenIsHeldNoLonger();
};

void tst_modifierstrokes::aModifierKeyHasItsOwnCodeAndTheFlagOfBothSides_data()
{
    QTest::addColumn<quint16>("scanCode");
    QTest::addColumn<QString>("pressed");
    QTest::addColumn<QString>("released");
    const auto row = [](const char *name, quint16 scanCode, const char *pressed,
                        const char *released) {
        QTest::newRow(name) << scanCode << QString::fromLatin1(pressed)
                            << QString::fromLatin1(released);
    };
    row("left command", 125, "flags 55 100000", "flags 55 0");
    row("right command", 126, "flags 54 100000", "flags 54 0");
    row("left shift", 42, "flags 56 20000", "flags 56 0");
    row("right shift", 54, "flags 60 20000", "flags 60 0");
    row("left option", 56, "flags 58 80000", "flags 58 0");
    row("right option", 100, "flags 61 80000", "flags 61 0");
    row("left control", 29, "flags 59 40000", "flags 59 0");
    row("right control", 97, "flags 62 40000", "flags 62 0");
    row("function", 464, "flags 63 800000", "flags 63 0");
}

void tst_modifierstrokes::aModifierKeyHasItsOwnCodeAndTheFlagOfBothSides()
{
    QFETCH(quint16, scanCode);
    QFETCH(QString, pressed);
    QFETCH(QString, released);
    StrokeStage stage;
    keystroke::tap({scanCode});
    QCOMPARE(stage.view.told(), pressed + QStringLiteral(", ") + released);
}

void tst_modifierstrokes::aHeldModifierKeyChangesTheFlagsOnce()
{
    StrokeStage stage;
    keystroke::press(kLeftShift);
    keystroke::repeat(kLeftShift, 3);
    keystroke::release(kLeftShift);
    QCOMPARE(stage.view.told(), QStringLiteral("flags 56 20000, flags 56 0"));
}

void tst_modifierstrokes::theFlagStaysWhileTheOtherOfTwoIsHeld()
{
    StrokeStage stage;
    keystroke::press(kLeftShift);
    keystroke::press(kRightShift, kShifted);
    keystroke::release(kLeftShift, kShifted);
    keystroke::release(kRightShift, kShifted);
    const auto told = QStringLiteral("flags 56 20000, flags 60 20000, flags 56 20000, flags 60 0");
    QCOMPARE(stage.view.told(), told);
}

void tst_modifierstrokes::flagsOfSeveralModifierKeysShowTogether()
{
    StrokeStage stage;
    keystroke::press(kLeftShift);
    keystroke::press(kLeftControl);
    keystroke::release(kLeftShift);
    keystroke::release(kLeftControl);
    const auto told = QStringLiteral("flags 56 20000, flags 59 60000, flags 56 40000, flags 59 0");
    QCOMPARE(stage.view.told(), told);
}

void tst_modifierstrokes::noModifierKeyIsHeldAfterTheKeyboardWasElsewhere_data()
{
    QTest::addColumn<bool>("isAnotherWindow");
    QTest::newRow("in another control") << false;
    QTest::newRow("in another window") << true;
}

void tst_modifierstrokes::noModifierKeyIsHeldAfterTheKeyboardWasElsewhere()
{
    QFETCH(bool, isAnotherWindow);
    StrokeStage stage;
    QLineEdit otherWindow;
    otherWindow.show();
    stage.dialog.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&stage.dialog));
    keystroke::press(kLeftShift);
    QWidget &elsewhere = isAnotherWindow ? otherWindow : stage.field;
    elsewhere.activateWindow();
    elsewhere.setFocus();
    QTRY_VERIFY(elsewhere.hasFocus());
    keystroke::release(kLeftShift);
    stage.dialog.activateWindow();
    stage.view.setFocus();
    QTRY_VERIFY(stage.view.hasFocus());
    keystroke::tap(kRightShift);
    keystroke::press(kA);
    const auto told = QStringLiteral("flags 56 20000, flags 60 20000, flags 60 0, down 0");
    QCOMPARE(stage.view.told(), told);
    QCOMPARE(stage.view.strokes.back().modifierFlags, 0U);
}

void tst_modifierstrokes::aModifierKeyPressedElsewhereIsToldWhenItGoesUp()
{
    StrokeStage stage;
    stage.field.setFocus();
    keystroke::press(kLeftShift);
    stage.view.setFocus();
    keystroke::release(kLeftShift);
    QCOMPARE(stage.view.told(), QStringLiteral("flags 56 0"));
}

void tst_modifierstrokes::theFlagStaysWhileTheOtherIsHeldSinceElsewhere()
{
    StrokeStage stage;
    stage.field.setFocus();
    keystroke::press(kLeftShift);
    stage.view.setFocus();
    keystroke::press(kRightShift, kShifted);
    keystroke::press(kA, kShifted);
    keystroke::release(kRightShift, kShifted);
    keystroke::release(kLeftShift, kShifted);
    QCOMPARE(stage.view.told(),
             QStringLiteral("flags 60 20000, down 0, flags 60 20000, flags 56 0"));
}

void tst_modifierstrokes::aFlagOfTheDisplayDoesNotOutliveItsKey()
{
    StrokeStage stage;
    stage.field.setFocus();
    keystroke::press(kLeftShift);
    stage.view.setFocus();
    keystroke::press(kRightShift, kShifted);
    keystroke::release(kLeftShift, kShifted);
    keystroke::release(kRightShift, kShifted);
    keystroke::tap(kRightShift);
    QCOMPARE(stage.view.told(), QStringLiteral("flags 60 20000, flags 56 20000, flags 60 0, "
                                               "flags 60 20000, flags 60 0"));
}

/// As while another program takes all keys for a moment.
void tst_modifierstrokes::aKeyLetGoUnseenIsHeldNoLonger()
{
    StrokeStage stage;
    stage.field.setFocus();
    keystroke::press(kLeftShift);
    stage.view.setFocus();
    keystroke::press(kRightShift, kShifted);
    keystroke::release(kRightShift, kShifted);
    keystroke::press(kRightShift); // by now neither is held
    keystroke::release(kRightShift, kShifted);
    QCOMPARE(stage.view.told(),
             QStringLiteral("flags 60 20000, flags 60 20000, flags 60 20000, flags 60 0"));
}

KYR_GUI_TEST(tst_modifierstrokes)
#include "tst_modifierstrokes.moc"
